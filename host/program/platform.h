// What arxhost asks of the system that it runs on.
#pragma once

#include <optional>
#include <string>
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

// Whether a person sits at standard input and output.
bool isAtTerminal();

// Runs with lines that the person at the terminal edits, status of the program; nothing when there
// is nobody, or a terminal that cannot do that.
std::optional<int> runEdited(const Options& options);
}  // namespace host
