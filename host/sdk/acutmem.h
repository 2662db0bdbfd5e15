// Texts that the host allocates for its callers.
#pragma once

#include "acadstrc.h"
#include "adesk.h"

// Frees and nulls; a null pointer is fine.
void acutDelString(ACHAR*& pString);
void acutDelBuffer(ACHAR*& pBuffer);

// A copy that acutDelString frees. eInvalidInput and null for a null text.
Acad::ErrorStatus acutNewString(const ACHAR* pInput, ACHAR*& pOutput);
