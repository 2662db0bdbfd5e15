// Runs a script while calls fail.
#pragma once

#include <string>

#include "tests/faults/faults.h"
#include "tests/faults/scripts.h"

// Opens a drawing in which no value is the one that a run sets.
void openDrawing();
// Loads the module from the current folder. Returns the host's objection, or an empty text when it
// has none.
std::string loadModule();
// Runs the script and closes the drawing. Returns the complaints about the run, one a line, or an
// empty text when there are none.
std::string runOnce(const Script& script, const faults::Plan& plan);
