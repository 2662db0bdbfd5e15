// Text helper of the Windows shell library.
#pragma once

#include "windows.h"

extern "C"
{
    // Decimal digits after an optional minus, up to the first other character; 0 when it starts
    // with anything else, a blank or a plus too. A number out of range keeps its low 32 bits. Null
    // gives 0.
    int WINAPI StrToIntW(PCWSTR text);
}

#define StrToInt StrToIntW
