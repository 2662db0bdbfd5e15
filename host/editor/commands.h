// Starts commands, at the command prompt and inside another command.
#pragma once

#include <string_view>

#include "host/editor/editor.h"

namespace host
{
// Asks for commands and runs them until QUIT or the end of the input.
void runCommands(Editor& editor);

// Executes a line typed at the command prompt: a command, a "C:" function or a variable. Returns
// false and prints a message [prints] when the host does not know the name.
bool executeLine(Editor& editor, std::wstring_view line);

// Executes a line that begins with an apostrophe, typed while a command asks. Prints why a command
// may not run [prints]. The caller asks its question again afterwards.
void startTransparent(Editor& editor, std::wstring_view line);

// Returns the names of the running commands, outermost first, with an apostrophe between them. The
// variable CMDNAMES has this text.
std::wstring runningNames(const Editor& editor);
}  // namespace host
