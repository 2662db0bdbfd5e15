// Message boxes of modules, asked at the command line.
#pragma once

namespace host
{
class Editor;

// Makes the editor [borrowed] answer message boxes from now on; null removes it.
void answerMessageBoxes(Editor* editor);
}  // namespace host
