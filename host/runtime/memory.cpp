#include "acutmem.h"

#include <cstdlib>
#include <wchar.h>

// One allocator for every text that the host hands out, and that of the C runtime: a caller may as
// well free such a text by itself.

void acutDelString(ACHAR*& pString)
{
    std::free(pString);
    pString = nullptr;
}

void acutDelBuffer(ACHAR*& pBuffer)
{
    acutDelString(pBuffer);
}

Acad::ErrorStatus acutNewString(const ACHAR* pInput, ACHAR*& pOutput)
{
    pOutput = nullptr;
    if (pInput == nullptr)
    {
        return Acad::eInvalidInput;
    }
    pOutput = wcsdup(pInput);
    return pOutput != nullptr ? Acad::eOk : Acad::eOutOfMemory;
}
