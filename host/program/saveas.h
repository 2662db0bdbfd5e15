// The command SAVEAS.
#pragma once

namespace host
{
// Adds the command to the host's commands.
void registerSaveAs();
}  // namespace host
