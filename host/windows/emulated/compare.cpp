#include <cstdint>

#include "crt.h"

namespace
{
int folded(wchar_t unit)
{
    return unit >= L'A' && unit <= L'Z' ? unit + (L'a' - L'A') : unit;
}
}  // namespace

int _wcsnicmp(const wchar_t* left, const wchar_t* right, std::size_t count)
{
    for (; count > 0; --count, ++left, ++right)
    {
        const int difference = folded(*left) - folded(*right);
        if (difference != 0 || *left == L'\0')
        {
            return difference;
        }
    }
    return 0;
}

int _wcsicmp(const wchar_t* left, const wchar_t* right)
{
    return _wcsnicmp(left, right, SIZE_MAX);
}
