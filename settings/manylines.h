// The question whether a grid of very many lines is meant.
#pragma once

#include "hostapi/host.h"

// More than fifty steps along a side of the rectangle, both in drawing units. An infinite ratio is
// many, one that is no number is not.
bool isManyLines(double gridSize, double step);

// Asks Yes or No about one direction or both [prints]; true for Yes. "Vertical" lines are those
// that the vertical step spaces along the height, in the words the users know.
// localeName selects the language (output/language.h).
bool userAllowsManyLines(bool vertical, bool horizontal, const CString& localeName);
