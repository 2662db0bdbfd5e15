#include "gelnsg3d.h"

#include <gtest/gtest.h>

#include "tests/geometry/randomframe.h"

namespace
{
// Asked through the base, as a caller may.
double distance(const AcGeCurve3d& curve, const AcGePoint3d& p)
{
    return curve.distanceTo(p);
}
}  // namespace

TEST(Segments, giveTheirEndsAndLength)
{
    const AcGeLineSeg3d segment(AcGePoint3d(1, 2, 3), AcGePoint3d(1, 5, 7));
    EXPECT_EQ(segment.startPoint(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(segment.endPoint(), AcGePoint3d(1, 5, 7));
    EXPECT_EQ(segment.length(), 5);
}

TEST(Segments, areMeasuredToTheirNearestPointEndsIncluded)
{
    struct Row
    {
        AcGePoint3d p, nearest;
        double distance;
    };
    const AcGeLineSeg3d segment(AcGePoint3d(0, 0, 1), AcGePoint3d(10, 0, 1));
    const Row rows[] = {
        {{4, 3, 1}, {4, 0, 1}, 3},    {{4, 0, 5}, {4, 0, 1}, 4},
        {{6, 3, 5}, {6, 0, 1}, 5},    {{-3, 4, 1}, {0, 0, 1}, 5},
        {{13, -4, 1}, {10, 0, 1}, 5}, {{25, 0, 1}, {10, 0, 1}, 15},  // on the line carried on
        {{0, 0, 1}, {0, 0, 1}, 0},    {{10, 0, 1}, {10, 0, 1}, 0},
        {{0, 7, 1}, {0, 0, 1}, 7},    {{10, 7, 1}, {10, 0, 1}, 7},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(distance(segment, row.p), row.distance) << row.p.x << ' ' << row.p.y;
        EXPECT_EQ(segment.closestPointTo(row.p), row.nearest) << row.p.x << ' ' << row.p.y;
    }
}

TEST(Segments, ofNoLengthAreMeasuredAsAPoint)
{
    const AcGePoint3d place(1e7, 1e7, 0);
    const AcGeLineSeg3d segment(place, place);
    EXPECT_EQ(segment.distanceTo(place + AcGeVector3d(3, 4, 0)), 5);
    EXPECT_EQ(segment.distanceTo(place), 0);
    EXPECT_EQ(segment.closestPointTo(AcGePoint3d()), place);
}

TEST(Segments, levelOrUprightHoldTheirPointsExactlyHoweverLong)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const AcGePoint3d start(dice.measured(0, 1e7), dice.measured(0, 1e7), 120.5);
        const AcGePoint3d level(start.x + dice.between(1, 1e7), start.y, start.z);
        const AcGePoint3d upright(start.x, start.y + dice.between(1, 1e7), start.z);
        const AcGePoint3d onLevel(dice.between(start.x, level.x), start.y, start.z);
        const AcGePoint3d onUpright(start.x, dice.between(start.y, upright.y), start.z);
        ASSERT_EQ(AcGeLineSeg3d(start, level).distanceTo(onLevel), 0);
        ASSERT_EQ(AcGeLineSeg3d(upright, start).distanceTo(onUpright), 0);
        ASSERT_EQ(AcGeLineSeg3d(start, level).closestPointTo(onLevel).distanceTo(onLevel), 0);
        const AcGePoint3d beside = onUpright + AcGeVector3d(dice.measured(1, 1e4), 0, 7);
        ASSERT_EQ(AcGeLineSeg3d(upright, start).closestPointTo(beside).distanceTo(onUpright), 0);
    }
}

TEST(Segments, keepSmallDistancesAtSurveyCoordinates)
{
    // The point is half a millimetre beside an oblique 5 km line. The coordinates are whole
    // numbers, so only the arithmetic can spoil the result.
    const AcGePoint3d start(6'000'000, 7'000'000, 0);
    const AcGeLineSeg3d segment(start, start + AcGeVector3d(3000, 4000, 0));
    const AcGePoint3d beside = start + AcGeVector3d(1500 + 4.0 / 8192, 2000 - 3.0 / 8192, 0);
    EXPECT_NEAR(segment.distanceTo(beside), 5.0 / 8192, 1e-12);
}

TEST(Segments, areAsFarEitherWayRoundAndInEveryFrame)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const AcGePoint3d a = dice.point(100);
        const AcGePoint3d b = dice.point(100);
        const AcGePoint3d p = dice.point(200);
        const double expected = AcGeLineSeg3d(a, b).distanceTo(p);
        ASSERT_NEAR(AcGeLineSeg3d(b, a).distanceTo(p), expected, 1e-12);
        const AcGeMatrix3d m = dice.tiltedFrame(1e6);
        ASSERT_NEAR(AcGeLineSeg3d(m * a, m * b).distanceTo(m * p), expected, 1e-8);
        const AcGePoint3d nearest = AcGeLineSeg3d(a, b).closestPointTo(p);
        ASSERT_NEAR(nearest.distanceTo(p), expected, 1e-12);
    }
}
