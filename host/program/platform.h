// The services of the system that arxhost runs on.
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
// Called first. Sets how output is written and how signals of the system end the run.
void beginProcess();

// The arguments in UTF-8, the program's name first.
std::vector<std::string> givenArguments(int count, char** arguments);

// Sends standard output nowhere. False when that cannot be done.
bool silenceOutput();

// The folder in which the user's programs keep what outlasts a session. It has been made if that
// was possible. Empty when there is no such place.
std::filesystem::path stateFolder();

// Writes to standard output or standard error.
void write(std::FILE* stream, std::string_view text);

// Called last. Where the window of the output closes with the program, waits so that the user can
// read why the run failed.
void beforeTheEnd(int status);

// Makes an empty file. False when there is a file of that name or it cannot be made.
bool makeNewFile(const std::filesystem::path& file);

// Runs a session with what a person types at the terminal and returns the status of the program. No
// value when standard input and output are not a terminal.
std::optional<int> runAtTerminal(const Options& options);

// The width of the terminal that standard error is. 0 when it is not a terminal, or one that cannot
// go back in a line.
int errorColumns();
}  // namespace host
