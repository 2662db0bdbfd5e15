#include "output/numbers.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

namespace
{
std::wstring wide(const CString& text)
{
    return static_cast<const wchar_t*>(text);
}

TEST(Numbers, realsAreWrittenInFixedPointWithTheDecimalsAskedFor)
{
    struct Row
    {
        double value;
        int decimals;
        const wchar_t* text;
    };
    const Row rows[] = {
        {12.5, 2, L"12.50"},
        {3.0, 3, L"3.000"},
        {100.0, 4, L"100.0000"},
        {0.0, 0, L"0"},  // no point without decimals
        {1e9, 9, L"1000000000.000000000"},
        {-7.26, 1, L"-7.3"},
        {12.6, 0, L"13"},
        {12.5, 0, L"13"},  // ties go away from zero
        {-7.25, 1, L"-7.3"},
        {0.125, 2, L"0.13"},
        {-0.001, 2, L"-0.00"},  // the sign survives rounding to zero
        {1.26, 12, L"1.3"},     // one digit of the count is read
        {1.25, 25, L"1.25"},
        {1.26, 10, L"1.3"},
        {1.25, INT_MAX, L"1.25"},
        {1.75, -1, L"2"},
        {1.75, INT_MIN, L"2"},
        {-0.0, 1, L"-0.0"},
        {123456789.0, 0, L"123456789"},  // no grouping, no exponent
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(wide(formatReal(row.value, row.decimals)), row.text)
            << row.value << " with " << row.decimals;
    }
}

TEST(Numbers, aRealThatIsNotSetIsAnEmptyTextAtAnyDecimalCount)
{
    for (const int decimals : {-5, 0, 2, 9, 12, INT_MAX})
    {
        EXPECT_EQ(wide(formatReal(notSetReal(), decimals)), L"");
        EXPECT_EQ(wide(formatReal(-notSetReal(), decimals)), L"");
    }
    EXPECT_NE(wide(formatReal(std::nextafter(DBL_MAX, 0), 0)), L"");
}

TEST(Numbers, theLongestRealIsWrittenWhole)
{
    EXPECT_EQ(wide(formatReal(-1e308, 9)).size(), 1u + 309 + 1 + 9);
}

TEST(Numbers, wholeNumbersAreWrittenPlainAndTheLargestAsNothing)
{
    EXPECT_EQ(wide(formatInt(0)), L"0");
    EXPECT_EQ(wide(formatInt(-12)), L"-12");
    EXPECT_EQ(wide(formatInt(INT_MIN)), L"-2147483648");
    EXPECT_EQ(wide(formatInt(INT_MAX - 1)), L"2147483646");
    EXPECT_EQ(wide(formatInt(INT_MAX)), L"");
    EXPECT_EQ(notSetInt(), INT_MAX);
}

TEST(Numbers, realsAreReadAsFarAsTheyGoAndForeignCharactersRefuseTheText)
{
    struct Row
    {
        const wchar_t* text;
        double value;
    };
    const double notSet = DBL_MAX;
    const Row rows[] = {
        {L"12.5", 12.5},
        {L"12,5", 12.5},  // typed with a decimal comma
        {L"+.5", 0.5},
        {L"-3", -3},
        {L"5.", 5},
        {L"1.2.3", 1.2},  // stops where the number stops
        {L"1,2,3", 1.2},
        {L"1-2", 1},
        {L"--5", 0},  // no number at its start
        {L".", 0},
        {L"-", 0},
        {L",", 0},
        {L"", notSet},
        {L" 7", notSet},  // blanks are refused, not trimmed
        {L"7 ", notSet},
        {L"7\t", notSet},
        {L"1e3", notSet},
        {L"0x10", notSet},
        {L"nan", notSet},
        {L"inf", notSet},
        {L"\u0667", notSet},  // a digit, but not one of ours
        {L"1\uFF0C5", notSet},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(parseReal(row.text), row.value) << testing::PrintToString(row.text);
    }
    EXPECT_EQ(parseReal(nullptr), notSetReal());
    EXPECT_EQ(parseReal(std::wstring(400, L'9').c_str()), HUGE_VAL);
}

TEST(Numbers, whatIsWrittenReadsBackAsTheSameNumber)
{
    for (const double value : {0.0, 1.5, -2.25, 1234567.0625, 1e-9, 2147483648.0})
    {
        EXPECT_EQ(parseReal(formatReal(value, 9)), value);
    }
    EXPECT_EQ(parseReal(formatReal(notSetReal(), 4)), notSetReal());
}
}  // namespace
