// Executes a run of arxhost, from opening the drawing to saving it.
#pragma once

#include "host/editor/frontend.h"
#include "host/program/options.h"

namespace host
{
// Executes the run and returns the status with which the program ends. Every failure is reported to
// the front end in one line.
int runJob(const Options& options, FrontEnd& frontEnd);
}  // namespace host
