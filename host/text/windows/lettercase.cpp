#include "host/text/lettercase.h"

#include "windows.h"

namespace host
{
namespace
{
wchar_t mapped(wchar_t letter, DWORD how)
{
    wchar_t result = letter;
    LCMapStringW(LOCALE_INVARIANT, how, &letter, 1, &result, 1);
    return result;
}
}  // namespace

wchar_t smallLetter(wchar_t letter)
{
    return mapped(letter, LCMAP_LOWERCASE);
}

wchar_t capitalLetter(wchar_t letter)
{
    return mapped(letter, LCMAP_UPPERCASE);
}
}  // namespace host
