#include "host/windows/emulated/decimal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace host
{
namespace
{
// Digits, with the decimal point after the first `point` digits.
struct Decimal
{
    std::string digits;
    std::size_t point;
};

// Returns how many decimals the number has: as many as the place of its lowest binary digit that is
// not 0 lies behind the binary point.
int decimalsOf(double size)
{
    int exponent = 0;
    const auto digits = static_cast<std::uint64_t>(std::ldexp(std::frexp(size, &exponent), 53));
    return std::max(0, 53 - exponent - std::countr_zero(digits));
}

// Returns all digits, of which no double has more than 309 before the decimal point and 1074 behind
// it. Asking for exactly those that a number has is many times faster than asking for 1074.
Decimal exactDecimal(double size)
{
    char text[309 + 1 + 1074 + 1];
    std::snprintf(text, sizeof text, "%#.*f", decimalsOf(size), size);
    std::string digits = text;
    const std::size_t point = digits.find_first_not_of("0123456789");
    return {digits.erase(point, 1), point};
}

void addOneToLastDigit(Decimal& number)
{
    for (auto digit = number.digits.rbegin(); digit != number.digits.rend(); ++digit)
    {
        if (*digit != '9')
        {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    number.digits.insert(0, 1, '1');
    ++number.point;
}

// All digits are present, so a five behind the last kept digit means half a unit or more.
void roundTo(Decimal& number, std::size_t count)
{
    if (count >= number.digits.size())
    {
        return;
    }
    const bool up = number.digits[count] >= '5';
    number.digits.resize(count);
    if (up)
    {
        addOneToLastDigit(number);
    }
}
}  // namespace

std::string fixedDigits(double size, int decimals)
{
    constexpr std::size_t significant = 17;
    Decimal number = exactDecimal(size);
    const std::size_t first = std::min(number.digits.find_first_not_of('0'), number.digits.size());
    roundTo(number, std::min(number.point + decimals, first + significant));
    number.digits.resize(number.point + decimals, '0');
    return decimals == 0 ? number.digits : number.digits.insert(number.point, ".");
}
}  // namespace host
