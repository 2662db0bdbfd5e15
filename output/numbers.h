// Numbers as the user reads and writes them: labels, settings file, dialog fields.
#pragma once

#include "hostapi/host.h"

// An empty or invalid number: the largest finite double, the largest int.
double notSetReal();
int notSetInt();

// Fixed point with "." and 0 to 9 decimals, rounded, trailing zeros kept: 12.5 with 2 is "12.50".
// Empty for a number that is not set, of either sign. A value that rounds to zero keeps its minus
// sign. Only the first digit of `decimals` counts (12 gives one decimal); a negative one gives
// none.
CString formatReal(double value, int decimals);

// Empty for a number that is not set.
CString formatInt(int value);

// Reads as much of the text as makes a number; "," counts as "." and "1-2" is 1.
// Not set for null, an empty text and one with anything but 0-9 - + . and , in it.
double parseReal(const wchar_t* text);
