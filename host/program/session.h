// A run of arxhost with somebody, or a script, at its command line.
#pragma once

#include "host/editor/linefrontend.h"
#include "host/program/options.h"

namespace host
{
// One line on standard error.
void printError(std::string_view line);

// Standard output, and standard error for reports.
LineOutput standardOutput();

// Status that the program ends with. The answers are read on the calling thread.
int runSession(const Options& options, AnswerReader& reader, LineOutput output = standardOutput());

// Where std::terminate leads. Ends with status 1 and one line for what nobody could be told of:
// memory that ran out while the input was read or while things were put away, an input that breaks
// off.
[[noreturn]] void endAtOnce();
}  // namespace host
