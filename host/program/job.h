// What one run of arxhost does, from the drawing that is opened to the drawing that is saved.
#pragma once

#include "host/editor/frontend.h"
#include "host/program/options.h"

namespace host
{
// Status that the program ends with. Every failure is one line on the front end's report.
int runJob(const Options& options, FrontEnd& frontEnd);
}  // namespace host
