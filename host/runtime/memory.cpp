#include "acutmem.h"

#include <cstdlib>
#include <wchar.h>

// Every text that the host returns comes from the allocator of the C runtime, because a caller may
// also free such a text directly.

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
