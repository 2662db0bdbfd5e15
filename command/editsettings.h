// The settings dialog, as the command opens it.
#pragma once

#include "command/gridrun.h"

// Lets the user change the settings of the run. True: the user confirmed and the settings hold the
// new values; false: they are untouched.
//
// gridWidth and gridHeight: the picked rectangle's sides in drawing units, -1.0 each when it is not
// picked yet.
bool editSettings(GridRun& run, double gridWidth, double gridHeight);
