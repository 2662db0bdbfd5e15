// The question before a very dense grid.
#pragma once

#include "settings/gridsettings.h"

// Returns whether the grid may be built. If a side of the rectangle is more than 50 steps long, the
// function asks the user in a message box and returns the answer. Otherwise it returns true.
//
// The width and the height are in drawing units and not negative. A step of 0 leads to the
// question, unless the side is 0 as well, because 0/0 is not a ratio. A step that is not set does
// not lead to the question. localeName selects the language (output/language.h).
bool mayBuildGrid(double gridWidth, double gridHeight, const GridSettings& settings,
                  const CString& localeName);
