// The host's own commands. Each one is a function, as a module's command is, and asks through the
// same calls where they fit.
#pragma once

#include <string>
#include <string_view>

#include "accmd.h"
#include "host/editor/owntexts.h"

namespace host
{
// Puts the host's commands on the command stack. A second call changes nothing.
void registerHostCommands();

// Adds one host command together with the line that HELP prints for it. A second call with the same
// name changes nothing.
void registerHostCommand(const wchar_t* name, int flags, AcRxFunctionPtr function, OwnText help);

// Returns the commands of modules as the user types them, with commas between them; an empty text
// when no module has registered a command.
std::wstring moduleCommandNames();

// Tells the next SETVAR which variable to set, so that it does not ask for a name.
void nameForSetvar(std::wstring_view name);

// The functions of the commands. Each one needs an editor [prints].
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
