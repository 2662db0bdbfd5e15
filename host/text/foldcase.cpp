#include "host/text/foldcase.h"

#include <algorithm>

#include "host/text/lettercase.h"

namespace host
{
wchar_t foldCase(wchar_t letter)
{
    if (letter < 0x80)
    {
        return letter >= L'A' && letter <= L'Z' ? wchar_t(letter + 32) : letter;
    }
    return smallLetter(letter);
}

std::wstring foldCase(std::wstring_view text)
{
    std::wstring folded(text);
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](wchar_t letter) { return foldCase(letter); });
    return folded;
}

wchar_t upperCase(wchar_t letter)
{
    if (letter < 0x80)
    {
        return letter >= L'a' && letter <= L'z' ? wchar_t(letter - 32) : letter;
    }
    return capitalLetter(letter);
}

std::wstring upperCase(std::wstring_view text)
{
    std::wstring raised(text);
    std::transform(raised.begin(), raised.end(), raised.begin(),
                   [](wchar_t letter) { return upperCase(letter); });
    return raised;
}

bool equalNoCase(std::wstring_view a, std::wstring_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](wchar_t x, wchar_t y) { return foldCase(x) == foldCase(y); });
}
}  // namespace host
