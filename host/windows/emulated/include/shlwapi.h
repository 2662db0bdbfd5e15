// A text helper of the Windows shell library.
#pragma once

#include "windows.h"

extern "C"
{
    // Reads decimal digits after an optional minus, up to the first other character. Returns 0 for
    // nullptr and for a text that begins with anything else, even a blank or a plus. Returns the
    // low 32 bits of a number out of range.
    int WINAPI StrToIntW(PCWSTR text);
}

#define StrToInt StrToIntW
