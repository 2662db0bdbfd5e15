// The digits of doubles, compared with the expansion to all 1074 decimals that a double can have.
#include "host/windows/emulated/decimal.h"

#include <algorithm>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <random>

#include <gtest/gtest.h>

namespace
{
// Room for a carry, then all digits.
std::string expansion(double size)
{
    char text[1 + 309 + 1 + 1074 + 1] = "0";
    std::snprintf(text + 1, sizeof text - 1, "%.1074f", size);
    return text;
}

// Rounds half up after the decimals or after the seventeenth digit, whichever comes first.
std::string rounded(std::string digits, int decimals)
{
    const std::size_t point = digits.find('.');
    digits.erase(point, 1);
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    const std::size_t end = point + static_cast<std::size_t>(decimals);
    const std::size_t kept = std::min({end, first + 17, digits.size()});
    bool carries = kept < digits.size() && digits[kept] >= '5';
    digits.resize(kept);
    for (std::size_t at = kept; carries; --at)
    {
        carries = digits[at - 1] == '9';
        digits[at - 1] = carries ? '0' : static_cast<char>(digits[at - 1] + 1);
    }
    digits.resize(end, '0');
    if (decimals > 0)
    {
        digits.insert(point, ".");
    }
    return digits[0] == '0' ? digits.substr(1) : digits;
}

void expectAll(double size)
{
    const std::string digits = expansion(size);
    for (const int decimals : {0, 1, 2, 4, 9, 17, 400})
    {
        ASSERT_EQ(host::fixedDigits(size, decimals), rounded(digits, decimals))
            << std::hexfloat << size << " with " << decimals << " decimals";
    }
}

TEST(FixedDigits, areThoseOfTheWholeExpansionAtTheEndsOfTheRange)
{
    for (const double size : {0.0, DBL_TRUE_MIN, 3 * DBL_TRUE_MIN, DBL_MIN - DBL_TRUE_MIN, DBL_MIN,
                              DBL_MAX, DBL_EPSILON, 0x1p52, 0x1p53, 0x1p53 + 2, 0x1p63, 0x1p1023})
    {
        expectAll(size);
    }
}

TEST(FixedDigits, areThoseOfTheWholeExpansionAtTiesAndBesideThem)
{
    std::mt19937_64 random(5);
    for (int i = 0; i < 2000; ++i)
    {
        // Whole numbers of 2^-n end in a five, and nines before it carry.
        const int power = static_cast<int>(random() % 11);
        const double tie =
            std::ldexp(static_cast<double>(random() >> (12 + random() % 50)), -power);
        const double nines =
            std::pow(10, static_cast<double>(random() % 15)) - std::ldexp(1, -power);
        for (const double size : {tie, nines})
        {
            expectAll(size);
            expectAll(std::nextafter(size, 0));
            expectAll(std::nextafter(size, HUGE_VAL));
        }
    }
}

TEST(FixedDigits, areThoseOfTheWholeExpansionOfEveryOtherNumber)
{
    std::mt19937_64 random(6);
    for (int i = 0; i < 5000; ++i)
    {
        const double size = std::fabs(std::bit_cast<double>(random()));
        if (std::isfinite(size))
        {
            expectAll(size);
        }
        const double label = static_cast<double>(random() % 100000000) / 1000;
        expectAll(label);
        expectAll(label - 12345.678 < 0 ? 0.1 * label : label - 12345.678);
    }
}
}  // namespace
