#include "engine/cleararea.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace
{
const double infinity = std::numeric_limits<double>::infinity();

struct Quad
{
    AcGePoint3d corners[4];
};

// 100 x 50 at elevation 5, counter-clockwise from the origin.
const Quad sheet = {{{0, 0, 5}, {100, 0, 5}, {100, 50, 5}, {0, 50, 5}}};

// The answer for the corners as they come; it has to be the same from whichever corner they begin
// and whichever way they turn.
int locate(const Quad& quad, double tolerance, const AcGePoint3d& point)
{
    const AcGePoint3d(&q)[4] = quad.corners;
    const int place = ClearArea(q[0], q[1], q[2], q[3], tolerance).locate(point);
    for (int i = 0; i < 4; ++i)
    {
        const AcGePoint3d turned[4] = {q[i], q[(i + 1) % 4], q[(i + 2) % 4], q[(i + 3) % 4]};
        const ClearArea onwards(turned[0], turned[1], turned[2], turned[3], tolerance);
        const ClearArea backwards(turned[3], turned[2], turned[1], turned[0], tolerance);
        EXPECT_EQ(onwards.locate(point), place) << "from corner " << i;
        EXPECT_EQ(backwards.locate(point), place) << "backwards from corner " << i;
    }
    return place;
}

TEST(ClearArea, isSureFourTolerancesOffTheEdges)
{
    struct Row
    {
        AcGePoint3d point;
        int place;
    };
    const Row rows[] = {
        {{50, 25, 5}, 1},
        {{50, 4.01, 5}, 1},
        {{50, 4, 5}, 0},
        {{50, -4, 5}, 0},
        {{50, -4.01, 5}, -1},
        {{50, 45.99, 5}, 1},
        {{50, 46.01, 5}, 0},
        {{50, 53.99, 5}, 0},
        {{50, 54.01, 5}, -1},
        {{4.01, 25, 5}, 1},
        {{3.99, 25, 5}, 0},
        {{-3.99, 25, 5}, 0},
        {{-4.01, 25, 5}, -1},
        {{95.99, 25, 5}, 1},
        {{96.01, 25, 5}, 0},
        {{103.99, 25, 5}, 0},
        {{104.01, 25, 5}, -1},
        {{1000, 0, 5}, -1},  // on the line of an edge, far past its end
        {{50, 25, 6}, 0},    // off the plane nothing is sure
        {{1000, 25, 0}, 0},
        {{infinity, 25, 5}, 0},
        {{50, std::nan(""), 5}, 0},
        {{1e151, 25, 5}, 0},  // no distance can be taken from there
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(locate(sheet, 1, row.point), row.place)
            << row.point.x << ' ' << row.point.y << ' ' << row.point.z;
    }
}

TEST(ClearArea, isNeverSureWithinAMillionthOfTheOutline)
{
    const Quad rhombus = {{{-100, 0, 0}, {0, -50, 0}, {100, 0, 0}, {0, 50, 0}}};
    const double tip = 200e-6 / std::sin(std::atan(0.5));  // there the edges are as far off
    for (const double side : {1.0, -1.0})
    {
        EXPECT_EQ(locate(rhombus, 1e-10, {side * (100 - 1.01 * tip), 0, 0}), 1);
        EXPECT_EQ(locate(rhombus, 1e-10, {side * (100 - 0.99 * tip), 0, 0}), 0);
        EXPECT_EQ(locate(rhombus, 1e-10, {side * (100 + 0.99 * tip), 0, 0}), 0);
        EXPECT_EQ(locate(rhombus, 1e-10, {side * (100 + 1.01 * tip), 0, 0}), -1);
    }
}

TEST(ClearArea, isNeverSureWithinTheRoundingOfSurveyCoordinates)
{
    const double x = 8388608;  // 2 to the 23rd, where a unit in the last place is 2 to the -29th
    const double unit = 16 * std::ldexp(1, -29);
    const Quad quad = {{{x, 0, 0}, {x + 1e-2, 0, 0}, {x + 1e-2, 1e-2, 0}, {x, 1e-2, 0}}};
    EXPECT_EQ(locate(quad, 0, {x + 5e-3, 4.1 * unit, 0}), 1);
    EXPECT_EQ(locate(quad, 0, {x + 5e-3, 3.9 * unit, 0}), 0);
    EXPECT_EQ(locate(quad, 0, {x + 5e-3, -3.9 * unit, 0}), 0);
    EXPECT_EQ(locate(quad, 0, {x + 5e-3, -4.1 * unit, 0}), -1);
}

TEST(ClearArea, isSureOfNothingUnlessTheCornersMakeAConvexOutline)
{
    struct Row
    {
        const char* what;
        Quad quad;
    };
    const Row rows[] = {
        {"with a notch", {{{0, 0, 0}, {100, 0, 0}, {20, 10, 0}, {0, 50, 0}}}},
        {"crossing itself", {{{0, 0, 0}, {100, 50, 0}, {100, 0, 0}, {0, 50, 0}}}},
        {"with a corner on an edge", {{{0, 0, 0}, {50, 0, 0}, {100, 0, 0}, {100, 50, 0}}}},
        {"with an unnoticed bend", {{{0, 0, 0}, {50, -2e-8, 0}, {100, 0, 0}, {50, 50, 0}}}},
        {"with a corner twice", {{{0, 0, 0}, {100, 0, 0}, {100, 0, 0}, {0, 50, 0}}}},
        {"without extent", {{{7, 7, 0}, {7, 7, 0}, {7, 7, 0}, {7, 7, 0}}}},
        {"off its plane", {{{0, 0, 0}, {100, 0, 0}, {100, 50, 1}, {0, 50, 0}}}},
        {"too large for areas", {{{-1e70, 0, 0}, {1e70, 0, 0}, {1e70, 1e70, 0}, {-1e70, 1e70, 0}}}},
        {"of too large coordinates",
         {{{1e70, 0, 0}, {1.9e70, 0, 0}, {1.9e70, 1e70, 0}, {1e70, 1e70, 0}}}},
        {"without end", {{{0, 0, 0}, {infinity, 0, 0}, {infinity, 50, 0}, {0, 50, 0}}}},
        {"with no number", {{{0, 0, 0}, {100, 0, 0}, {100, std::nan(""), 0}, {0, 50, 0}}}},
        {"at an elevation of no size",
         {{{0, 0, infinity}, {9, 0, infinity}, {9, 9, infinity}, {0, 9, infinity}}}},
    };
    for (const Row& row : rows)
    {
        for (const double far : {5.0, -1000.0})
        {
            const AcGePoint3d point(far, far, row.quad.corners[0].z);
            EXPECT_EQ(locate(row.quad, 1e-10, point), 0) << row.what << ' ' << far;
        }
    }
}

TEST(ClearArea, isSureOfOutlinesThatAreJustConvexOrJustSmallEnough)
{
    const Quad bent = {{{0, 0, 0}, {50, -3e-8, 0}, {100, 0, 0}, {50, 50, 0}}};
    EXPECT_EQ(locate(bent, 1e-10, {50, 20, 0}), 1);
    EXPECT_EQ(locate(bent, 1e-10, {50, -1, 0}), -1);
    const Quad huge = {{{-9e69, -9e69, 0}, {9e69, -9e69, 0}, {9e69, 9e69, 0}, {-9e69, 9e69, 0}}};
    EXPECT_EQ(locate(huge, 1e-10, {1e69, 0, 0}), 1);
    EXPECT_EQ(locate(huge, 1e-10, {1e70, 0, 0}), -1);
    const Quad tooHuge = {{{-1e70, -1e70, 0}, {1e70, -1e70, 0}, {1e70, 1e70, 0}, {-1e70, 1e70, 0}}};
    EXPECT_EQ(locate(tooHuge, 1e-10, {1e69, 0, 0}), 0);
}
}  // namespace
