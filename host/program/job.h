// One run of arxhost, from the drawing that it opens to the drawing that it saves.
#pragma once

#include "host/editor/frontend.h"
#include "host/program/options.h"

namespace host
{
// Runs the session and returns the status that the program ends with. Every failure is reported to
// the front end in one line.
int runJob(const Options& options, FrontEnd& frontEnd);
}  // namespace host
