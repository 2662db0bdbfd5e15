#include "host/text/lettercase.h"

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

wchar_t smallLetter(wchar_t letter)
{
    const locale_t locale = unicodeLocale();
    return locale ? wchar_t(towlower_l(wint_t(letter), locale)) : letter;
}

wchar_t capitalLetter(wchar_t letter)
{
    const locale_t locale = unicodeLocale();
    return locale ? wchar_t(towupper_l(wint_t(letter), locale)) : letter;
}
}  // namespace host
