#include "engine/pointtests.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "output/tolerance.h"

namespace
{
const double infinity = std::numeric_limits<double>::infinity();

struct Quad
{
    AcGePoint3d corners[4];
};

// 100 x 50 at elevation 5, counter-clockwise from the origin.
const Quad sheet = {{{0, 0, 5}, {100, 0, 5}, {100, 50, 5}, {0, 50, 5}}};

// The same turned by the angle of 3, 4 and 5.
AcGePoint3d turned(const AcGePoint3d& p)
{
    return {0.6 * p.x - 0.8 * p.y, 0.8 * p.x + 0.6 * p.y, p.z};
}

// Returns the answer for the corners in the given order. It must be the same along X and along Y,
// from whichever corner they begin and in whichever direction they turn.
int locate(const Quad& quad, const AcGePoint3d& point)
{
    const AcGePoint3d(&q)[4] = quad.corners;
    const auto placeIn = [&](int first, int step, int axis)
    {
        AcGePoint3dArray outline;
        for (int i = 0; i < 4; ++i)
        {
            outline.append(q[(first + 4 + i * step) % 4]);
        }
        return lineSpan(outline, point, axis).locate(point);
    };
    const int place = placeIn(0, 1, 0);
    for (int i = 0; i < 4; ++i)
    {
        for (const int axis : {0, 1})
        {
            EXPECT_EQ(placeIn(i, 1, axis), place) << "from corner " << i << ", axis " << axis;
            EXPECT_EQ(placeIn(i, -1, axis), place) << "backwards from " << i << ", axis " << axis;
        }
    }
    return place;
}

TEST(LineSpan, decidesFourTolerancesOffTheEdges)
{
    struct Row
    {
        AcGePoint3d point;
        int place;
    };
    const Row rows[] = {
        {{50, 25, 5}, 1},      {{50, 4.01, 5}, 1},  {{50, 3.99, 5}, 0},  {{50, -3.99, 5}, 0},
        {{50, -4.01, 5}, -1},  {{50, 45.99, 5}, 1}, {{50, 46.01, 5}, 0}, {{50, 53.99, 5}, 0},
        {{50, 54.01, 5}, -1},  {{4.01, 25, 5}, 1},  {{3.99, 25, 5}, 0},  {{-3.99, 25, 5}, 0},
        {{-4.01, 25, 5}, -1},  {{95.99, 25, 5}, 1}, {{96.01, 25, 5}, 0}, {{103.99, 25, 5}, 0},
        {{104.01, 25, 5}, -1}, {{1000, 0, 5}, -1},  // past the end of an edge
        {{1e151, 25, 5}, -1},
    };
    const Quad turnedSheet = {{turned(sheet.corners[0]), turned(sheet.corners[1]),
                               turned(sheet.corners[2]), turned(sheet.corners[3])}};
    const BorrowedTolerance tolerance(1);
    for (const Row& row : rows)
    {
        EXPECT_EQ(locate(sheet, row.point), row.place) << row.point.x << ' ' << row.point.y;
        EXPECT_EQ(locate(turnedSheet, turned(row.point)), row.place)
            << row.point.x << ' ' << row.point.y;
    }
}

TEST(LineSpan, takesTheLargestToleranceOfThePointTests)
{
    EXPECT_EQ(locate(sheet, {50, 4.01, 5}), 1);
    const AcGeTol former = AcGeContext::gTol;
    AcGeContext::gTol.setEqualVector(2);
    EXPECT_EQ(locate(sheet, {50, 7.99, 5}), 0);
    EXPECT_EQ(locate(sheet, {50, 8.01, 5}), 1);
    AcGeContext::gTol = former;
    const Quad small = {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}};
    EXPECT_EQ(locate(small, {0.5, 3.99e-6, 0}), 0);
    EXPECT_EQ(locate(small, {0.5, 4.01e-6, 0}), 1);
}

TEST(LineSpan, decidesNothingOutsideWithinAQuarterOfAMillionthOfTheOutline)
{
    const Quad large = {{{0, 0, 0}, {300, 0, 0}, {300, 400, 0}, {0, 400, 0}}};
    EXPECT_EQ(locate(large, {150, 4.01e-6, 0}), 1);
    EXPECT_EQ(locate(large, {150, 3.99e-6, 0}), 0);
    EXPECT_EQ(locate(large, {150, -124.9e-6, 0}), 0);
    EXPECT_EQ(locate(large, {150, -125.1e-6, 0}), -1);
}

TEST(LineSpan, decidesNothingUnlessTheCornersMakeARectangle)
{
    struct Row
    {
        const char* what;
        Quad quad;
    };
    const Row rows[] = {
        {"with a notch", {{{0, 0, 0}, {100, 0, 0}, {20, 10, 0}, {0, 50, 0}}}},
        {"crossing itself", {{{0, 0, 0}, {100, 50, 0}, {100, 0, 0}, {0, 50, 0}}}},
        {"a trapezium", {{{0, 0, 0}, {100, 0, 0}, {90, 50, 0}, {0, 50, 0}}}},
        {"a parallelogram", {{{0, 0, 0}, {100, 0, 0}, {110, 50, 0}, {10, 50, 0}}}},
        {"a corner twice", {{{0, 0, 0}, {100, 0, 0}, {100, 0, 0}, {0, 50, 0}}}},
        {"without width", {{{0, 0, 0}, {0, 0, 0}, {0, 50, 0}, {0, 50, 0}}}},
        {"without extent", {{{7, 7, 0}, {7, 7, 0}, {7, 7, 0}, {7, 7, 0}}}},
        {"off its plane", {{{0, 0, 0}, {100, 0, 0}, {100, 50, 1}, {0, 50, 1}}}},
        {"too large to be measured",
         {{{-1e160, 0, 0}, {1e160, 0, 0}, {1e160, 1e160, 0}, {-1e160, 1e160, 0}}}},
        {"without end", {{{0, 0, 0}, {infinity, 0, 0}, {infinity, 50, 0}, {0, 50, 0}}}},
        {"with no number", {{{0, 0, 0}, {100, 0, 0}, {100, std::nan(""), 0}, {0, 50, 0}}}},
    };
    for (const Row& row : rows)
    {
        for (const double at : {5.0, -1000.0})
        {
            const AcGePoint3d point(at, at, row.quad.corners[0].z);
            EXPECT_EQ(locate(row.quad, point), 0) << row.what << ' ' << at;
        }
    }
    EXPECT_EQ(locate(sheet, {50, 25, 6}), 0) << "at another elevation";
}

TEST(LineSpan, takesARectangleThatIsSkewedByLessThanTheTolerance)
{
    const BorrowedTolerance tolerance(1e-3);
    const Quad slightly = {{{0, 0, 0}, {100, 9e-4, 0}, {100, 50, 0}, {0, 50, 0}}};
    EXPECT_EQ(locate(slightly, {50, 25, 0}), 1);
    const Quad more = {{{0, 0, 0}, {100, 11e-4, 0}, {100, 50, 0}, {0, 50, 0}}};
    EXPECT_EQ(locate(more, {50, 25, 0}), 0);
}
}  // namespace
