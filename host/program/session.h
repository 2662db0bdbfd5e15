// A run of arxhost with a person or a script at its command line.
#pragma once

#include "host/editor/linefrontend.h"
#include "host/program/options.h"

namespace host
{
// Writes one line to standard error.
void printError(std::string_view line);

// Returns an output that prints to standard output and reports to standard error.
LineOutput standardOutput();

// Runs a job and returns the status with which the program ends. The answers are read on the
// calling thread.
int runSession(const Options& options, AnswerReader& reader, LineOutput output = standardOutput());

// Handles std::terminate: ends the program with status 1 and one line. It serves the failures that
// no result can carry: an input that breaks off, or memory that runs out while the input is read or
// while objects are destroyed.
[[noreturn]] void endAtOnce();
}  // namespace host
