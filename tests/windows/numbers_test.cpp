#include <climits>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "afxwin.h"
#include "shlwapi.h"

namespace
{
TEST(NumberTexts, realsAreReadAsFarAsTheyGoOn)
{
    struct Row
    {
        const wchar_t* text;
        double value;
    };
    const Row rows[] = {
        {L"100.0000", 100},
        {L"-12.5", -12.5},
        {L"+.5", 0.5},
        {L"5.", 5},
        {L"007", 7},
        {L" \t 7", 7},
        {L"7 8", 7},
        {L"1.2.3", 1.2},
        {L"1-2", 1},
        {L"--5", 0},
        {L"+-5", 0},
        {L"- 5", 0},
        {L"", 0},
        {L".", 0},
        {L"-", 0},
        {L"abc", 0},
        {L".e5", 0},
        {L"2,5", 2},  // the point is a point
        {L"1e3", 1000},
        {L"1E+3", 1000},
        {L"1d3", 1000},
        {L"1D-3", 0.001},
        {L"1e", 1},  // no exponent without a digit
        {L"1e+", 1},
        {L"1e3.5", 1000},
        {L"1ee3", 1},
        {L"0x10", 0},
        {L"inf", 0},
        {L"nan", 0},
        {L"\x0667", 0},  // a digit, but not one of ours
        {L"\n7", 0},
        {L"0.1", 0.1},
        {L"9007199254740993", 9007199254740992.0},  // exactly half-way: to the even one
        {L"9007199254740993.0000000000000000000000000000000000001", 9007199254740994.0},
        {L"2.2250738585072011e-308", 2.2250738585072011e-308},
        {L"1.7976931348623157e308", 1.7976931348623157e308},
        {L"1.7976931348623159e308", HUGE_VAL},
        {L"1e309", HUGE_VAL},
        {L"-1e309", -HUGE_VAL},
        {L"1e99999999999999999999", HUGE_VAL},
        {L"-1e99999999999999999999", -HUGE_VAL},
        {L"1e-99999999999999999999", 0},
        {L"0e99999999999999999999", 0},
        {L"0.0000000001e318", 1e308},
        {L"0.0000000001e319", HUGE_VAL},
        {L"10000000000e-340", 0},
        {L"4.9e-324", 4.9e-324},
        {L"1e-324", 0},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(_wtof(row.text), row.value) << testing::PrintToString(row.text);
    }
    EXPECT_EQ(_wtof(std::wstring(400, L'9').c_str()), HUGE_VAL);
    EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1").c_str()), 0);
    EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1e0").c_str()), 0);
    EXPECT_EQ(_wtof((L"1e" + std::wstring(400, L'9')).c_str()), HUGE_VAL);
    EXPECT_EQ(_wtof((L"1e-" + std::wstring(400, L'9')).c_str()), 0);
    EXPECT_EQ(_wtof((L"0." + std::wstring(400, L'0') + L"1e401").c_str()), 1);
}

TEST(NumberTexts, aZeroKeepsItsSign)
{
    EXPECT_TRUE(std::signbit(_wtof(L"-0.0")));
    EXPECT_TRUE(std::signbit(_wtof(L"-1e-400")));
    EXPECT_FALSE(std::signbit(_wtof(L"0")));
}

TEST(NumberTexts, withoutADigitThereIsNoSign)
{
    for (const wchar_t* text : {L"-", L"--5", L"-.", L"-x", L" -", L"-e5", L"- 5", L"-+5"})
    {
        EXPECT_EQ(_wtof(text), 0) << testing::PrintToString(text);
        EXPECT_FALSE(std::signbit(_wtof(text))) << testing::PrintToString(text);
    }
}

TEST(NumberTexts, wholeNumbersOfTheShellTakeAMinusAndDigitsOnly)
{
    struct Row
    {
        const wchar_t* text;
        int value;
    };
    const Row rows[] = {
        {L"12", 12},
        {L"-12", -12},
        {L"12.9", 12},
        {L"12abc", 12},
        {L"007", 7},
        {L"", 0},
        {L"-", 0},
        {L"--5", 0},
        {L"abc", 0},
        {L" 5", 0},  // refused, not skipped
        {L"+5", 0},
        {L"\t5", 0},
        {L"- 5", 0},
        {L"0x10", 0},
        {L"2147483647", INT_MAX},
        {L"-2147483648", INT_MIN},
        {L"2147483648", INT_MIN},  // the low 32 bits
        {L"4294967296", 0},
        {L"4294967301", 5},
        {L"-4294967301", -5},
        {L"99999999999999999999", 1661992959},
        {nullptr, 0},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(StrToIntW(row.text), row.value) << testing::PrintToString(row.text);
        EXPECT_EQ(StrToInt(row.text), row.value);
    }
}

TEST(NumberTexts, wholeNumbersOfTheRuntimeEndAtTheNearestInt)
{
    struct Row
    {
        const wchar_t* text;
        int value;
    };
    const Row rows[] = {
        {L"12", 12},
        {L" \t\n+12", 12},
        {L"-12x", -12},
        {L"", 0},
        {L"x", 0},
        {L"+-1", 0},
        {L"2147483647", INT_MAX},
        {L"2147483648", INT_MAX},
        {L"-2147483649", INT_MIN},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(_wtoi(row.text), row.value) << testing::PrintToString(row.text);
    }
}

TEST(NumberTexts, namesCompareWithLatinLettersFoldedOnly)
{
    struct Row
    {
        const wchar_t* left;
        const wchar_t* right;
        int order;
    };
    const Row rows[] = {
        {L"horstep", L"HorStep", 0},
        {L"", L"", 0},
        {L"a", L"", 1},
        {L"a", L"ab", -1},
        {L"bXLeft", L"BXRIGHT", -1},
        {L"_", L"A", -1},  // before the letters, which count as small
        {L"[", L"A", -1},
        {L"{", L"Z", 1},
        {L"\x0428", L"\x0448", -1},  // Cyrillic is not folded
        {L"\xC9", L"\xE9", -1},
    };
    for (const Row& row : rows)
    {
        const int order = _wcsicmp(row.left, row.right);
        EXPECT_EQ((order > 0) - (order < 0), row.order) << testing::PrintToString(row.left);
        const int reversed = _wcsicmp(row.right, row.left);
        EXPECT_EQ((reversed > 0) - (reversed < 0), -row.order) << testing::PrintToString(row.left);
    }
    EXPECT_EQ(_wcsnicmp(L"GRIDx", L"gridy", 4), 0);
    EXPECT_LT(_wcsnicmp(L"GRIDx", L"gridy", 5), 0);
    EXPECT_EQ(_wcsnicmp(L"a", L"b", 0), 0);
    EXPECT_EQ(_wcsnicmp(L"a", L"A", 9), 0);
}
}  // namespace
