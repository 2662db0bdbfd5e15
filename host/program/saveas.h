// The command SAVEAS.
#pragma once

namespace host
{
void registerSaveAs();
}  // namespace host
