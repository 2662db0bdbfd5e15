// What arxhost asks of the system that it runs on.
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
// First of all: how output is written, and what must not end the run.
void beginProcess();

// UTF-8, the program's name first.
std::vector<std::string> givenArguments(int count, char** arguments);

// False when it cannot be done.
bool silenceOutput();

// Where the user's programs keep what outlasts a session, made if that was possible; empty if there
// is no such place.
std::filesystem::path stateFolder();

// Writes to standard output or standard error.
void write(std::FILE* stream, std::string_view text);

// Last of all: lets whoever sees the output in a window that closes with the program read why it
// failed.
void beforeTheEnd(int status);

// Makes an empty file; false if there is one of that name, or it cannot be made.
bool makeNewFile(const std::filesystem::path& file);

// Runs with what a person types at the terminal, status of the program; nothing when nobody sits
// at standard input and output.
std::optional<int> runAtTerminal(const Options& options);

// Of the terminal that standard error is; 0 when it is none, or one that cannot go back in a line.
int errorColumns();
}  // namespace host
