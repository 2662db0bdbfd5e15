// A run of arxhost with a person or a script at its command line.
#pragma once

#include "host/editor/linefrontend.h"
#include "host/program/options.h"

namespace host
{
// Writes one line to standard error.
void printError(std::string_view line);

// Prints to standard output and reports to standard error.
LineOutput standardOutput();

// Runs a job and returns the status that the program ends with. The answers are read on the calling
// thread.
int runSession(const Options& options, AnswerReader& reader, LineOutput output = standardOutput());

// The handler of std::terminate. It ends the program with status 1 and one line on what no result
// can tell: an input that breaks off, or memory that runs out while the input is read or while
// objects are destroyed.
[[noreturn]] void endAtOnce();
}  // namespace host
