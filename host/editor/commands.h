// Starting commands, at the command prompt and inside another command.
#pragma once

#include <string_view>

#include "host/editor/editor.h"

namespace host
{
// Asks for commands and runs them until QUIT or the end of the input.
void runCommands(Editor& editor);

// What was typed at the command prompt: a command, "C:" function or variable. Returns false when
// the host knows no such name.
bool executeLine(Editor& editor, std::wstring_view line);

// A line with an apostrophe before it, typed while a command asks. The caller asks again.
void startTransparent(Editor& editor, std::wstring_view line);

// Names of the running commands with an apostrophe between them, as CMDNAMES has them.
std::wstring runningNames(const Editor& editor);
}  // namespace host
