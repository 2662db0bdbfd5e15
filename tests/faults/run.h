// One run of a script, with calls that fail.
#pragma once

#include <string>

#include "tests/faults/faults.h"
#include "tests/faults/scripts.h"

// Opens a drawing in which nothing stands as a run sets it.
void openDrawing();
// Loads the module from the current folder; what the host has against it, empty for nothing.
std::string loadModule();
// Complaints of one run, a line each; empty when all is well. The drawing is closed after it.
std::string runOnce(const Script& script, const faults::Plan& plan);
