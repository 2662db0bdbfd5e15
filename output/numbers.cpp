#include "output/numbers.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cwchar>

double notSetReal()
{
    return DBL_MAX;
}

int notSetInt()
{
    return INT_MAX;
}

CString formatInt(int value)
{
    CString text;
    if (value != notSetInt())
    {
        text.Format(L"%d", value);
    }
    return text;
}

namespace
{
// Returns the first digit of the number of decimals, so 10 gives 1 and 25 gives 2. A compatibility
// rule keeps this: settings files in use hold such numbers, and their labels must not change.
wchar_t decimalsDigit(int decimals)
{
    CString digits;
    digits.Format(L"%d", decimals);
    return decimals < 0 ? L'0' : digits[0];
}
}  // namespace

CString formatReal(double value, int decimals)
{
    CString text;
    if (std::fabs(value) == notSetReal())
    {
        return text;
    }
    wchar_t conversion[] = L"%.df";
    conversion[2] = decimalsDigit(decimals);
    text.Format(conversion, value);
    return text;
}

double parseReal(const wchar_t* text)
{
    if (text == nullptr || *text == 0 || text[std::wcsspn(text, L"0123456789-+.,")] != 0)
    {
        return notSetReal();
    }
    CString number(text);
    number.Replace(L',', L'.');
    return _wtof(number);
}
