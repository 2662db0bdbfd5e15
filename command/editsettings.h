// The settings dialog, as the command opens it.
#pragma once

#include "command/gridrun.h"

// Opens the dialog in which the user changes the settings of the run.
//
// Returns true when the user confirmed; run.settings then holds the new values. Returns false when
// the user cancelled and when the host has no document manager; run.settings is then unchanged.
//
// gridWidth and gridHeight are the sides of the picked rectangle in drawing units. Both are -1.0
// while the rectangle is not picked yet.
bool editSettings(GridRun& run, double gridWidth, double gridHeight);
