// The question before a very dense grid.
#pragma once

#include "settings/gridsettings.h"

// Whether the grid may be built: true without a question unless a side of the rectangle is more
// than 50 steps long, else the user's answer.
//
// Width and height in drawing units, not negative. A step of 0 asks; with a side of 0 as well there
// is no ratio, and nothing is asked. A step that is not set asks nothing. localeName
// selects the language (output/language.h).
bool mayBuildGrid(double gridWidth, double gridHeight, const GridSettings& settings,
                  const CString& localeName);
