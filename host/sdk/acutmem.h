// Texts that the host allocates for its callers.
#pragma once

#include "acadstrc.h"
#include "adesk.h"

// Free a text that the host allocated for the caller and set the pointer to null. The pointer may
// be null. Both functions do the same; the host has two names for it.
void acutDelString(ACHAR*& pString);
void acutDelBuffer(ACHAR*& pBuffer);

// Copies a text. The caller owns pOutput and frees it with acutDelString. Returns eInvalidInput for
// a null pInput and eOutOfMemory when the copy cannot be made; pOutput is null then.
Acad::ErrorStatus acutNewString(const ACHAR* pInput, ACHAR*& pOutput);
