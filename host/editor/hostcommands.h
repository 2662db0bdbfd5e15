// The host's own commands. Each is a function as a module's command is, and asks through the same
// calls where those fit.
#pragma once

#include <string>
#include <string_view>

#include "accmd.h"
#include "host/editor/owntexts.h"

namespace host
{
// Puts the host's commands on the command stack; doing so again changes nothing.
void registerHostCommands();

// One more of them, and what HELP says about it. Again changes nothing.
void registerHostCommand(const wchar_t* name, int flags, AcRxFunctionPtr function, OwnText help);

// As the user types them, with commas between them; empty when no module has registered any.
std::wstring moduleCommandNames();

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
void helpCommand();
}  // namespace host
