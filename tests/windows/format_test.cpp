#include "tests/windows/format.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace
{
TEST(Format, textsAreWideForTheSmallLetterAndNarrowForTheCapital)
{
    EXPECT_EQ(format(L"%s%s", L"X=", L"1250.50"), L"X=1250.50");
    EXPECT_EQ(format(L"%ls %ws %lS", L"\x0448", L"b", L"c"), L"\x0448 b c");
    EXPECT_EQ(format(L"%S %hs", "narrow", "\xE9"), L"narrow \xE9");
    EXPECT_EQ(format(L"%c%C%hc%lc", L'\x0448', 'n', '\xE9', L'w'), L"\x0448n\xE9w");
    EXPECT_EQ(format(L"[%6s|%-6s|%.2s|%6.2s]", L"abc", L"abc", L"abc", L"abc"),
              L"[   abc|abc   |ab|    ab]");
    EXPECT_EQ(format(L"[%*s|%-*s|%.*s]", 4, L"ab", 4, L"ab", 1, L"ab"), L"[  ab|ab  |a]");
    EXPECT_EQ(format(L"[%*s|%.*s]", -4, L"ab", -1, L"ab"), L"[ab  |ab]");
    EXPECT_EQ(format(L"[%3c|%-3c]", L'x', L'y'), L"[  x|y  ]");
    EXPECT_EQ(format(L"%s %S", static_cast<wchar_t*>(nullptr), static_cast<char*>(nullptr)),
              L"(null) (null)");
}

TEST(Format, aPrecisionIsEnoughForATextWithoutItsEnd)
{
    const wchar_t wide[] = {L'a', L'b'};
    const char narrow[] = {'c', 'd'};
    EXPECT_EQ(format(L"%.2s%.2S", wide, narrow), L"abcd");
}

TEST(Format, wholeNumbersHaveTheirSizes)
{
    EXPECT_EQ(format(L"%d %i %u", -1, INT_MIN, -1), L"-1 -2147483648 4294967295");
    EXPECT_EQ(format(L"%x %X %o %#x", 0xABCDu, 0xABCDu, 8u, 255u), L"abcd ABCD 10 0xff");
    EXPECT_EQ(format(L"%hd %hu", 0x18000, 0x1FFFF), L"-32768 65535");
    EXPECT_EQ(format(L"%ld %lu", -1L, 1UL), L"-1 1");
    EXPECT_EQ(format(L"%lld %I64d %I64u", LLONG_MIN, -1LL, ULLONG_MAX),
              L"-9223372036854775808 -1 18446744073709551615");
    EXPECT_EQ(format(L"%I32d %I32u %Id", -1, -1, std::ptrdiff_t(-5)), L"-1 4294967295 -5");
    EXPECT_EQ(format(L"[%5d|%-5d|%05d|%+d|% d|%.3d]", 42, 42, 42, 42, 42, 42),
              L"[   42|42   |00042|+42| 42|042]");
}

TEST(Format, argumentsStayInStepAfterEveryKind)
{
    EXPECT_EQ(format(L"%d %s %.1f %I64d %c %S %x", 1, L"two", 3.0, 4LL, L'5', "six", 7),
              L"1 two 3.0 4 5 six 7");
}

TEST(Format, fixedPointRoundsTiesAwayFromZeroAndEndsAtSeventeenDigits)
{
    struct Row
    {
        const wchar_t* format;
        double value;
        const wchar_t* text;
    };
    const Row rows[] = {
        {L"%.1f", -0.0, L"-0.0"},
        {L"%.0f", 0.5, L"1"},
        {L"%.0f", 2.5, L"3"},
        {L"%.0f", 12.5, L"13"},
        {L"%.2f", 0.125, L"0.13"},
        {L"%.0f", -2.5, L"-3"},
        {L"%.1f", 0.25, L"0.3"},
        {L"%.1f", 0.15, L"0.1"},  // a little less than it looks: no tie
        {L"%.1f", 0.35, L"0.3"},
        {L"%.2f", 2.675, L"2.67"},
        {L"%.2f", 1.005, L"1.00"},
        {L"%.0f", 0.49999999999999994, L"0"},
        {L"%.0f", 9.5, L"10"},
        {L"%.2f", 99.995, L"100.00"},  // a little more than it looks
        {L"%.2f", -0.001, L"-0.00"},
        {L"%.0f", 0.0, L"0"},
        {L"%.3f", 3.0, L"3.000"},
        {L"%f", 1.0, L"1.000000"},
        {L"%.0f", 123456789012345678.0, L"123456789012345680"},
        {L"%.0f", 9007199254740993.0, L"9007199254740992"},
        {L"%.20f", 0.1, L"0.10000000000000001000"},
        {L"%.9f", 123456789.123456789, L"123456789.123456790"},
        {L"%.0f", 99999999999999995.0, L"100000000000000000"},
        {L"%.3f", DBL_TRUE_MIN, L"0.000"},
        {L"[%8.2f]", -1.5, L"[   -1.50]"},
        {L"[%-8.2f]", 1.5, L"[1.50    ]"},
        {L"[%08.2f]", -1.5, L"[-0001.50]"},
        {L"[%-08.2f]", 1.5, L"[1.50    ]"},
        {L"[%+.1f]", 1.5, L"[+1.5]"},
        {L"[% .1f]", 1.5, L"[ 1.5]"},
        {L"[%#.0f]", 1.5, L"[2.]"},
        {L"%.17e", 0.5, L"5.00000000000000000e-01"},
        {L"%g", 1250.5, L"1250.5"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(format(row.format, row.value), row.text) << row.value;
    }
}

TEST(Format, aNegativePrecisionIsNone)
{
    EXPECT_EQ(format(L"%.*f %.*d", -1, 1.5, -1, 7), L"1.500000 7");
}

TEST(Format, theLargestNumberIsWrittenWhole)
{
    EXPECT_EQ(format(L"%.2f", DBL_MAX), L"17976931348623157" + std::wstring(292, L'0') + L".00");
    EXPECT_EQ(format(L"%.2f", -DBL_MAX).size(), 1u + 312);
    EXPECT_EQ(format(L"%5000d", 1), std::wstring(4999, L' ') + L"1");
    EXPECT_EQ(format(L"%.2000f", 0.5), L"0.5" + std::wstring(1999, L'0'));
    const std::wstring longText(70000, L'x');
    EXPECT_EQ(format(L"%s", longText.c_str()), longText);
}

TEST(Format, numbersThatAreNoneHaveANameToo)
{
    EXPECT_EQ(format(L"%.2f %.2f", HUGE_VAL, -HUGE_VAL), L"inf -inf");
    EXPECT_EQ(format(L"%.1f", std::numeric_limits<double>::quiet_NaN()), L"nan");
}

TEST(Format, aLongDoubleIsTakenWhole)
{
    EXPECT_EQ(format(L"%.1Lf %d", 2.5L, 7), L"2.5 7");
}

TEST(Format, pointersAreSixteenDigits)
{
    EXPECT_EQ(format(L"%p", reinterpret_cast<void*>(0xBEEF)), L"000000000000BEEF");
    EXPECT_EQ(format(L"[%18p]", nullptr), L"[  0000000000000000]");
}

TEST(Format, whatIsNoConversionIsText)
{
    EXPECT_EQ(format(L"100%% \x0448"), L"100% \x0448");
    EXPECT_EQ(format(L"%y"), L"y");
    EXPECT_EQ(format(L"50%"), L"50");
    EXPECT_EQ(format(L"%5"), L"");
    EXPECT_EQ(format(L"%.12345678901234567890"), L"");
    EXPECT_EQ(format(L""), L"");
}
}  // namespace
