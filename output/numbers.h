// Converts numbers to and from the text that the user reads and writes: labels, the settings file
// and the fields of the dialog.
#pragma once

#include "hostapi/host.h"

// Returns the value that represents an empty or invalid number: the largest finite double.
double notSetReal();

// Returns the value that represents an empty or invalid number: the largest int.
int notSetInt();

// Returns the rounded number in fixed-point form with "." and 0 to 9 decimals. Trailing zeros are
// kept: 12.5 with 2 decimals is "12.50". The text is empty for a number that is not set, of either
// sign. A value that rounds to zero keeps its minus sign. Only the first digit of `decimals`
// counts, so 12 gives one decimal; a negative number gives zero decimals.
CString formatReal(double value, int decimals);

// Returns the number in decimal form. The text is empty for a number that is not set.
CString formatInt(int value);

// Returns the number at the beginning of the text; "," counts as ".", and "1-2" gives 1. Returns
// notSetReal() for null, for an empty text and for a text with any character except 0-9 - + . and ,
double parseReal(const wchar_t* text);
