// The host's own commands. Each is a function as a module's command is, and asks through the same
// calls where those fit.
#pragma once

#include <string_view>

namespace host
{
// Puts the host's commands on the command stack; doing so again changes nothing.
void registerHostCommands();

// SETVAR, started next, is about this variable and does not ask for a name.
void nameForSetvar(std::wstring_view name);

void ucsCommand();
void vpointCommand();
void dviewCommand();
void planCommand();
void setvarCommand();
void arxCommand();
void undoCommand();
void redoCommand();
void quitCommand();
}  // namespace host
