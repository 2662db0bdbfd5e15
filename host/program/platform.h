// The functions of arxhost that depend on the system.
#pragma once

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/program/options.h"

namespace host
{
// Sets how output is written and how signals end the run. The program calls it first.
void beginProcess();

// Returns the arguments in UTF-8, with the program's name first.
std::vector<std::string> givenArguments(int count, char** arguments);

// Discards everything that is written to `stdout` from now on. Returns false when that fails.
bool silenceOutput();

// Returns the folder for files that outlast a session and creates it if possible. Returns an empty
// path when the user has no such folder.
std::filesystem::path stateFolder();

// Writes UTF-8 to standard output or standard error.
void write(std::FILE* stream, std::string_view text);

// Waits for Enter after a failure if the window would close before the user can read why the run
// failed. The program calls it last.
void beforeTheEnd(int status);

// Creates an empty file. Returns false when a file of that name exists or the file cannot be
// created.
bool makeNewFile(const std::filesystem::path& file);

// Runs a session with a person at the terminal and returns the status of the program. Returns no
// value when standard input and output are not a terminal.
std::optional<int> runAtTerminal(const Options& options);

// Returns the columns of the terminal on standard error. Returns 0 when standard error is not a
// terminal or the terminal cannot move the cursor back in a line.
int errorColumns();
}  // namespace host
