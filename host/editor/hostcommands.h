// The host's own commands. Each one is a function, like a module's command, and asks through the
// same calls where they fit.
#pragma once

#include <string>
#include <string_view>

#include "accmd.h"
#include "host/editor/owntexts.h"

namespace host
{
// Registers the host's commands on the command stack. A second call changes nothing.
void registerHostCommands();

// Adds one host command together with the line that HELP prints for it. A second call with the same
// name changes nothing.
void registerHostCommand(const wchar_t* name, int flags, AcRxFunctionPtr function, OwnText help);

// Returns the names of the modules' commands as the user types them, separated by commas. The text
// is empty when no module has registered a command.
std::wstring moduleCommandNames();

// Tells the next SETVAR which variable to set, so that it does not ask for a name.
void nameForSetvar(std::wstring_view name);

// The functions of the commands [prints]. Each one needs an editor.
void ucsCommand();
void vpointCommand();
void dviewCommand();
void planCommand();
void setvarCommand();
void arxCommand();
void undoCommand();
void redoCommand();
void quitCommand();
void helpCommand();
}  // namespace host
