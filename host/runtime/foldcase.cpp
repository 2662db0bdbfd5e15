#include "host/runtime/foldcase.h"

#include <algorithm>
#include <clocale>
#include <cwctype>

namespace host
{
namespace
{
locale_t unicodeLocale()
{
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t(0));
    return locale;
}
}  // namespace

wchar_t foldCase(wchar_t letter)
{
    if (letter < 0x80)
    {
        return letter >= L'A' && letter <= L'Z' ? wchar_t(letter + 32) : letter;
    }
    const locale_t locale = unicodeLocale();
    return locale ? wchar_t(towlower_l(wint_t(letter), locale)) : letter;
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
    const locale_t locale = unicodeLocale();
    return locale ? wchar_t(towupper_l(wint_t(letter), locale)) : letter;
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
