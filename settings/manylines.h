// The question whether the user wants a grid of very many lines.
#pragma once

#include "hostapi/host.h"

// Returns whether a side of the rectangle is more than fifty steps long. Both are in drawing units.
// The result is true for an infinite ratio and false for a ratio that is NaN.
bool isManyLines(double gridSize, double step);

// Asks Yes or No about one direction or both in a message box. Returns true for Yes. In the words
// that the users know, "vertical" lines are those that the vertical step spaces along the height.
// localeName selects the language (output/language.h).
bool userAllowsManyLines(bool vertical, bool horizontal, const CString& localeName);
