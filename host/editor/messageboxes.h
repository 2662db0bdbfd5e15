// Message boxes of modules, asked at the command line.
#pragma once

namespace host
{
class Editor;

// The editor answers from now on; null takes that away.
void answerMessageBoxes(Editor* editor);
}  // namespace host
