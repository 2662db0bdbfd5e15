#include "host/editor/pointtext.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/text/numbers.h"

namespace
{
TEST(NumberText, wholeTextHasToBeTheNumber)
{
    struct Row
    {
        const wchar_t* text;
        std::optional<double> value;
    };
    const std::optional<double> none;
    const Row rows[] = {
        {L"12.5", 12.5}, {L" 7 ", 7},     {L"+.5", 0.5},  {L"-3.", -3},     {L"1.7e2", 170},
        {L"2E-1", 0.2},  {L"12,5", none},  // the point alone is decimal
        {L"1-2", none},  {L"+-1", none},  {L"++1", none}, {L"", none},      {L".", none},
        {L"1e", none},   {L"inf", none},  {L"nan", none}, {L"1e999", none}, {L"0x10", none},
        {L"1 2", none},  {L"１", none},  // a digit of another script
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(host::parseReal(row.text), row.value) << testing::PrintToString(row.text);
    }
}

TEST(NumberText, numbersAreShownInFullAndPlain)
{
    struct Row
    {
        double value;
        const wchar_t* text;
    };
    const Row rows[] = {
        {0, L"0"},
        {-0.0, L"0"},
        {3, L"3"},
        {100000, L"100000"},
        {0.1, L"0.1"},
        {-2.5, L"-2.5"},
        {1234567.125, L"1234567.125"},
        {1e20, L"1e+20"},
        {1e-9, L"1e-09"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(host::realText(row.value), row.text);
    }
}

TEST(NumberText, anglesAreShownInDegreesWithoutConversionDust)
{
    for (int degrees = -360; degrees <= 360; degrees += 15)
    {
        const double radians = degrees * 3.14159265358979323846 / 180;
        EXPECT_EQ(host::degreesText(radians), std::to_wstring(degrees));
    }
}

struct PointRow
{
    const wchar_t* text;
    AcGePoint3d coordinates;
    bool hasZ, relative, world;
};

TEST(PointText, formsOfAPoint)
{
    const PointRow rows[] = {
        {L"1,2", {1, 2, 0}, false, false, false},
        {L"1,2,3", {1, 2, 3}, true, false, false},
        {L" 1 , -2.5 ", {1, -2.5, 0}, false, false, false},
        {L"@3,4", {3, 4, 0}, false, true, false},
        {L"@3,4,5", {3, 4, 5}, true, true, false},
        {L"@ 3, 4", {3, 4, 0}, false, true, false},
        {L"@", {0, 0, 0}, false, true, false},
        {L"@10<90", {0, 10, 0}, false, true, false},
        {L"10<180", {-10, 0, 0}, false, false, false},
        {L"10<-90", {0, -10, 0}, false, false, false},
        {L"*5,6", {5, 6, 0}, false, false, true},
        {L"*5,6,7", {5, 6, 7}, true, false, true},
    };
    for (const PointRow& row : rows)
    {
        const auto point = host::parsePoint(row.text);
        ASSERT_TRUE(point) << testing::PrintToString(row.text);
        EXPECT_EQ(point->coordinates.x, row.coordinates.x) << testing::PrintToString(row.text);
        EXPECT_EQ(point->coordinates.y, row.coordinates.y) << testing::PrintToString(row.text);
        EXPECT_EQ(point->coordinates.z, row.coordinates.z) << testing::PrintToString(row.text);
        EXPECT_EQ(point->hasZ, row.hasZ) << testing::PrintToString(row.text);
        EXPECT_EQ(point->relative, row.relative) << testing::PrintToString(row.text);
        EXPECT_EQ(point->world, row.world) << testing::PrintToString(row.text);
    }
}

TEST(PointText, otherTextsAreNoPoints)
{
    const wchar_t* const texts[] = {L"",      L"1",     L"1,",  L",1",      L"1,2,3,4", L"a,b",
                                    L"*",     L"1;2",   L"1 2", L"10<",     L"<90",     L"1<2<3",
                                    L"@@1,2", L"1,2<3", L"S",   L"1.2.3,4", L"inf,0"};
    for (const wchar_t* text : texts)
    {
        EXPECT_FALSE(host::parsePoint(text)) << testing::PrintToString(text);
    }
}

TEST(PointText, quarterTurnsAreExact)
{
    for (int turn = -8; turn <= 8; ++turn)
    {
        const host::Direction direction = host::directionOf(turn * 90);
        EXPECT_TRUE(direction.x == 0 || direction.y == 0);
        EXPECT_EQ(std::fabs(direction.x + direction.y), 1);
    }
    EXPECT_EQ(host::directionOf(-90).y, -1);
    EXPECT_NEAR(host::directionOf(30).x, std::sqrt(3) / 2, 1e-15);
    EXPECT_NEAR(host::directionOf(390).y, 0.5, 1e-15);
}
}  // namespace
