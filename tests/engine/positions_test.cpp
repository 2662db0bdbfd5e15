#include "engine/positions.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

#include <gtest/gtest.h>

namespace
{
using Positions = std::vector<double>;

const double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

TEST(Positions, runFromOneStepBeforeTheRectangleToOneStepAfterIt)
{
    struct Row
    {
        double low, high, base, step;
        Positions positions;
    };
    const Row rows[] = {
        {0, 20, 0, 10, {-10, 0, 10, 20, 30}},
        {5, 20, 0, 10, {0, 10, 20, 30}},          // towards zero: -5 / 10 is 0
        {5, 20, 10, 10, {0, 10, 20, 30}},         // towards zero: -15 / 10 is -1
        {5, 20, -100, 10, {-10, 0, 10, 20, 30}},  // 95 / 10 is 9, and so a step further out
        {5, 5, 5, 10, {-5, 5, 15}},               // no width at all
        {1, 2, 1.5, 0.5, {0.5, 1, 1.5, 2, 2.5}},
        {-20, -15, 0, 10, {-30, -20, -10}},
        {-25, -15, 0, 10, {-30, -20, -10}},  // towards zero: a step further in than -40
        {0, 10, 0, 100, {-100, 0, 100}},
        {20, 0, 0, 10, {10}},  // corners never come so; it ends all the same
        {50, 0, 0, 10, {}},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(linePositions(row.low, row.high, row.base, row.step, 100), row.positions)
            << row.low << ' ' << row.high << ' ' << row.base << ' ' << row.step;
    }
}

TEST(Positions, coverTheRectangleWhereverTheBaseIs)
{
    std::mt19937 random(20140319);
    std::uniform_real_distribution<double> coordinate(-1000, 1000);
    for (int i = 0; i < 10000; ++i)
    {
        const double low = coordinate(random);
        const double high = low + std::fabs(coordinate(random));
        const double base = coordinate(random);
        const double step = 1 + std::fabs(coordinate(random)) / 10;
        const Positions positions = linePositions(low, high, base, step, maxNodes);
        ASSERT_FALSE(positions.empty());
        EXPECT_LE(positions.front(), low + step * 1e-9) << "step " << step;
        EXPECT_GT(positions.back(), high);
        for (const double at : positions)
        {
            const double steps = (at - base) / step;
            ASSERT_NEAR(steps, std::round(steps), 1e-6);
        }
    }
}

TEST(Positions, areAddedUpAndNotMultiplied)
{
    const Positions positions = linePositions(0, 1, 0, 0.1, 100);
    ASSERT_EQ(positions.size(), 13u);
    EXPECT_EQ(positions[4], -0.1 + 0.1 + 0.1 + 0.1 + 0.1);
}

TEST(Positions, thereAreNoneForNumbersThatMakeNoRow)
{
    struct Row
    {
        double low, high, base, step;
    };
    const Row rows[] = {
        {0, 20, 0, 0},
        {0, 20, 0, -0.0},
        {0, 20, 0, -10},
        {0, 20, 0, DBL_MAX},  // not set
        {0, 20, 0, -DBL_MAX},
        {0, 20, 0, nan},
        {0, 20, 0, infinity},
        {0, 20, 0, -infinity},
        {0, 20, 0, DBL_MIN},
        {0, 20, 0, 4e-324},
        {0, 20, 1e20, 10},  // 10^19 steps to the base
        {0, 20, -1e20, 10},
        {0, 20, DBL_MAX, 10},
        {0, 20, nan, 10},
        {0, 20, infinity, 10},
        {nan, 20, 0, 10},
        {0, nan, 0, 10},
        {-infinity, infinity, 0, 10},
        {-DBL_MAX, DBL_MAX, 0, 10},
        {1e17, 1e17 + 100, 1e17, 1},  // too small to move the coordinate
        {1e300, 1e300, 1e300, 1},
        {1e300, 2e300, 0, 1e299},  // distances there cannot be taken
        {0, 2e150, 0, 1e149},
        {-2e150, 0, 0, 1e149},
        {0, 3e9, 0, 1},  // too many lines
    };
    for (const Row& row : rows)
    {
        EXPECT_TRUE(linePositions(row.low, row.high, row.base, row.step, maxNodes).empty())
            << row.low << ' ' << row.high << ' ' << row.base << ' ' << row.step;
    }
}

TEST(Positions, theFurthestStepThatAnIntCountsStillGivesARow)
{
    const double low = (INT_MAX + 1.0) * 10;  // one step more than the first line stands off
    EXPECT_EQ(linePositions(low, low, 0, 10, 100), (Positions{low - 10, low, low + 10}));
    EXPECT_TRUE(linePositions(low + 10, low + 10, 0, 10, 100).empty());
    const double below = (INT_MIN - 5.0) * 10;  // a count cut to an int would start in the middle
    EXPECT_TRUE(linePositions(below, below + 100, 0, 10, 100).empty());
}

TEST(Positions, noListIsLongerThanItsLimit)
{
    EXPECT_EQ(linePositions(0, 20, 0, 10, 5).size(), 5u);
    EXPECT_TRUE(linePositions(0, 20, 0, 10, 4).empty());
    EXPECT_TRUE(linePositions(0, 20, 0, 10, 0).empty());
    // The sum of seventeen tenths falls short of their product, and an eighteenth has room.
    EXPECT_TRUE(linePositions(5, 6.5, 0, 0.1, 17).empty());
    EXPECT_EQ(linePositions(5, 6.5, 0, 0.1, 18).size(), 18u);
}

// Lines count from the low corner.
GridRequest grid(const AcGePoint3d& low, const AcGePoint3d& high, double HorStep, double VertStep)
{
    GridRequest request;
    request.corner1 = request.options.basePoint = low;
    request.corner2 = high;
    request.options.HorStep = HorStep;
    request.options.VertStep = VertStep;
    return request;
}

TEST(Positions, aDirectionWithoutLinesLeavesNoNodes)
{
    const AcGePoint3d low(0, 0, 0);
    const AcGePoint3d high(20, 20, 0);
    const GridLines both = gridLines(grid(low, high, 10, 20));
    EXPECT_EQ(both.at[0], (Positions{-10, 0, 10, 20, 30}));
    EXPECT_EQ(both.at[1], (Positions{-20, 0, 20, 40}));
    EXPECT_TRUE(gridLines(grid(low, high, 0, 20)).at[1].empty());
    EXPECT_TRUE(gridLines(grid(low, high, 10, 0)).at[1].empty());
    EXPECT_TRUE(gridLines(grid(low, high, 10, 0)).at[0].empty());  // they may be millions
}

TEST(Positions, thereAreNeverMoreNodesThanAMachineCanHold)
{
    const AcGePoint3d low(0, 0, 0);
    const AcGePoint3d high(5788, 5788, 0);  // 5791 positions each way are just below the bound
    const GridLines most = gridLines(grid(low, high, 1, 1));
    EXPECT_EQ(most.at[0].size() * most.at[1].size(), 5791u * 5791u);
    const AcGePoint3d higher(5790, 5790, 0);
    EXPECT_TRUE(gridLines(grid(low, higher, 1, 1)).at[1].empty());
}

// Numbers as a damaged settings file may hold them, and every other kind of double.
double hostile(std::mt19937_64& random)
{
    const double special[] = {
        0,      -0.0,     1,         -1,    0.1,          100,          1e7,
        1e15,   1e17,     1e150,     1e151, DBL_MAX,      -DBL_MAX,     DBL_MIN,
        4e-324, infinity, -infinity, nan,   2147483647.0, 2147483648.0, -2147483648.0,
        1e-12};
    if (random() % 3 != 0)
    {
        return special[random() % std::size(special)];
    }
    const std::uint64_t bits = random();
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

TEST(Positions, endForAnyNumbersAndStayWithinTheBound)
{
    std::mt19937_64 random(33554432);
    for (int i = 0; i < 100000; ++i)
    {
        double n[4];
        for (double& number : n)
        {
            number = hostile(random);
        }
        const int limit = 1000;
        const Positions positions = linePositions(n[0], n[1], n[2], n[3], limit);
        ASSERT_LE(positions.size(), std::size_t(limit));
        for (std::size_t at = 1; at < positions.size(); ++at)
        {
            ASSERT_GT(positions[at], positions[at - 1]);
        }
    }
}
}  // namespace
