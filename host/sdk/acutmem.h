// Texts that the host allocates for its callers.
#pragma once

#include "acadstrc.h"
#include "adesk.h"

// Each frees a text that the host allocated for the caller and sets the pointer to null. A null
// pointer is allowed. Both do the same work; the host has two names for it.
void acutDelString(ACHAR*& pString);
void acutDelBuffer(ACHAR*& pBuffer);

// Copies a text. The caller owns pOutput and frees it with acutDelString.
// eInvalidInput for a null pInput, eOutOfMemory; pOutput is null then.
Acad::ErrorStatus acutNewString(const ACHAR* pInput, ACHAR*& pOutput);
