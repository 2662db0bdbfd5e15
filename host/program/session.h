// A run of arxhost with somebody, or a script, at its command line.
#pragma once

#include "host/editor/linefrontend.h"
#include "host/program/options.h"

namespace host
{
// Standard output, and standard error for reports.
LineOutput standardOutput();

// Status that the program ends with. The answers are read on the calling thread.
int runSession(const Options& options, AnswerReader& reader, LineOutput output = standardOutput());
}  // namespace host
