#include "engine/pointtests.h"

#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "output/tolerance.h"

namespace
{
const double infinity = std::numeric_limits<double>::infinity();

AcGePoint3dArray points(std::initializer_list<AcGePoint3d> list)
{
    AcGePoint3dArray array;
    for (const AcGePoint3d& point : list)
    {
        array.append(point);
    }
    return array;
}

// 100 x 50, counter-clockwise from the origin.
AcGePoint3dArray sheet()
{
    return points({{0, 0, 0}, {100, 0, 0}, {100, 50, 0}, {0, 50, 0}});
}

TEST(PointInQuad, tellsInsideEdgeOutsideAndCorner)
{
    struct Row
    {
        AcGePoint3d point;
        int place;
    };
    const Row rows[] = {
        {{50, 25, 0}, 1},
        {{1e-3, 1e-3, 0}, 1},
        {{99.9, 49.9, 0}, 1},
        {{50, 0, 0}, 0},
        {{100, 25, 0}, 0},
        {{50, 50, 0}, 0},
        {{0, 25, 0}, 0},
        {{50, 5e-11, 0}, 0},  // within the host's tolerance on either side
        {{50, -5e-11, 0}, 0},
        {{50, -2e-10, 0}, 1},  // off the edge, but too near for the angles to tell
        {{50, -1e-5, 0}, 1},   // a millionth of an angle is the most that is not seen
        {{50, -2e-5, 0}, -1},
        {{0, 0, 0}, 2},
        {{100, 50, 0}, 2},
        {{5e-13, 0, 0}, 2},
        {{5e-12, 0, 0}, 0},  // no longer at the corner, still on the edge
        {{-1, 25, 0}, -1},
        {{101, 25, 0}, -1},
        {{150, 0, 0}, -1},  // on the line of an edge, past its end
        {{50, 25, 1}, -1},  // above the sheet
        {{infinity, 25, 0}, -1},
        {{std::nan(""), 25, 0}, -1},
        {{DBL_MAX, DBL_MAX, 0}, -1},
    };
    const AcGePoint3dArray q = sheet();
    for (const Row& row : rows)
    {
        const AcGePoint3d& p = row.point;
        EXPECT_EQ(pointInQuad(p, q[0], q[1], q[2], q[3]), row.place)
            << p.x << ' ' << p.y << ' ' << p.z;
        EXPECT_EQ(pointInQuad(p, q[3], q[2], q[1], q[0]), row.place) << "the other turn";
    }
}

TEST(PointInQuad, usesTheTolerancesOfTheHostAsTheyStand)
{
    const AcGePoint3dArray q = sheet();
    const AcGeTol former = AcGeContext::gTol;
    AcGeContext::gTol.setEqualPoint(1);
    EXPECT_EQ(pointInQuad({50, 1, 0}, q[0], q[1], q[2], q[3]), 0);
    EXPECT_EQ(pointInQuad({50, 1.1, 0}, q[0], q[1], q[2], q[3]), 1);
    AcGeContext::gTol.setEqualVector(2);
    EXPECT_EQ(pointInQuad({1.5, 1, 0}, q[0], q[1], q[2], q[3]), 2);
    EXPECT_EQ(pointInQuad({2, 0, 0}, q[0], q[1], q[2], q[3]), 2);
    AcGeContext::gTol = former;
}

// Points computed on the outline at survey coordinates are some roundings off it, which the grid
// raises the tolerance to.
TEST(PointInQuad, takesNoPointOnTheOutlineForInsideAtSurveyCoordinates)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> unit(0, 1);
    for (int i = 0; i < 10000; ++i)
    {
        const double turn = 6.28 * unit(random);
        const AcGeVector3d along(300 * std::cos(turn), 300 * std::sin(turn), 0);
        const AcGeVector3d up(-200 * std::sin(turn), 200 * std::cos(turn), 0);
        const AcGePoint3d origin(1e6 + 9e6 * unit(random), 1e6 + 9e6 * unit(random), 0);
        const BorrowedTolerance tolerance(atLeastRounding(1e-10, 1.1e7));
        const AcGePoint3d q[] = {origin, origin + along, origin + along + up, origin + up};
        const double part = 0.01 + 0.98 * unit(random);
        EXPECT_EQ(pointInQuad(origin + along * part, q[0], q[1], q[2], q[3]), 0);
        EXPECT_EQ(pointInQuad(q[2] - up * part, q[0], q[1], q[2], q[3]), 0);
        EXPECT_NE(pointInQuad(q[2] - along - up, q[0], q[1], q[2], q[3]), 1);
        EXPECT_EQ(pointInQuad(origin + along * part + up * part, q[0], q[1], q[2], q[3]), 1);
        EXPECT_EQ(pointInQuad(origin + along * part - up * part, q[0], q[1], q[2], q[3]), -1);
    }
}

TEST(PointInOutlinePoints, countsTheFirstFourPointsOnly)
{
    AcGePoint3dArray outline = sheet();
    outline.append(AcGePoint3d(-100, 25, 0));
    EXPECT_EQ(pointInOutlinePoints({50, 25, 0}, outline), 1);
    EXPECT_EQ(pointInOutlinePoints({-50, 25, 0}, outline), -1);
}

TEST(PointInOutlinePoints, refusesAnOutlineOfFewerThanFour)
{
    EXPECT_EQ(pointInOutlinePoints({0, 0, 0}, points({})), -99);
    EXPECT_EQ(pointInOutlinePoints({1, 1, 0}, points({{0, 0, 0}, {9, 0, 0}, {0, 9, 0}})), -99);
}

int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve)
{
    AcDbMPolygon area;
    areaWithin(&curve, area);
    return pointInCurve(P, curve, area);
}

TEST(PointInCurve, tellsInsideOnAndOutside)
{
    AcGePoint3dArray corners = sheet();
    const AcDb2dPolyline frame(AcDb::k2dSimplePoly, corners, 0, true);
    EXPECT_EQ(pointInCurve({50, 25, 0}, frame), 1);
    EXPECT_EQ(pointInCurve({50, 0, 0}, frame), 0);
    EXPECT_EQ(pointInCurve({0, 0, 0}, frame), 0);  // corners are not a separate case here
    EXPECT_EQ(pointInCurve({50, 5e-11, 0}, frame), 0);
    EXPECT_EQ(pointInCurve({-1, 25, 0}, frame), -1);
    EXPECT_EQ(pointInCurve({150, 50, 0}, frame), -1);
}

TEST(PointInCurve, usesTheToleranceOfTheHostAsItStands)
{
    AcGePoint3dArray corners = sheet();
    const AcDb2dPolyline frame(AcDb::k2dSimplePoly, corners, 0, true);
    const BorrowedTolerance tolerance(1);
    EXPECT_EQ(pointInCurve({50, 1, 0}, frame), 0);
    EXPECT_EQ(pointInCurve({50, 1.1, 0}, frame), 1);
}

TEST(PointInCurve, takesACurveOfAnyShape)
{
    AcGePoint3dArray corners =
        points({{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {50, 10, 0}, {0, 100, 0}});
    const AcDb2dPolyline notched(AcDb::k2dSimplePoly, corners, 0, true);
    EXPECT_EQ(pointInCurve({50, 5, 0}, notched), 1);
    EXPECT_EQ(pointInCurve({50, 50, 0}, notched), -1);
    EXPECT_EQ(pointInCurve({10, 50, 0}, notched), 1);
}

TEST(PointInCurve, takesARectangleThatRepeatsItsFirstCorner)
{
    AcGePoint3dArray corners = sheet();
    corners.append(corners.first());
    const AcDb2dPolyline frame(AcDb::k2dSimplePoly, corners, 0, true);
    EXPECT_EQ(pointInCurve({50, 25, 0}, frame), 1);
    EXPECT_EQ(pointInCurve({0, 0, 0}, frame), 0);
    EXPECT_EQ(pointInCurve({0, 60, 0}, frame), -1);
}

TEST(PointInCurve, refusesACurveThatIsNoPolyline)
{
    const AcDbLine line({0, 0, 0}, {100, 0, 0});
    EXPECT_EQ(pointInCurve({50, 0, 0}, line), 0);
    EXPECT_EQ(pointInCurve({50, 1, 0}, line), -99);
}

class Unmeasurable : public AcDbLine
{
public:
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                        Adesk::Boolean) const override
    {
        onCurve = given;
        return Acad::eInvalidInput;
    }
};

TEST(PointInCurve, refusesACurveThatTheHostCannotMeasure)
{
    EXPECT_EQ(pointInCurve({0, 0, 0}, Unmeasurable()), -99);
}

TEST(KnownPoints, areFoundCloserThanAMillionth)
{
    KnownPoints known(AcGeVector3d::kYAxis);
    EXPECT_FALSE(known.containsPoint({0, 0, 0}));
    known.add({0, 0, 0});
    known.add({10, 20, 30});
    EXPECT_TRUE(known.containsPoint({10, 20, 30}));
    EXPECT_TRUE(known.containsPoint({10, 20 + 9e-7, 30}));
    EXPECT_TRUE(known.containsPoint({0, 0, 9e-7}));
    EXPECT_FALSE(known.containsPoint({0, 0, 1e-6}));  // strictly closer
    EXPECT_FALSE(known.containsPoint({0, 1e-6, 0}));
    EXPECT_FALSE(known.containsPoint({5, 5, 5}));
}

TEST(KnownPoints, areFoundAsQuicklyInALongRow)
{
    KnownPoints known({0.1, 0.2, -1});
    for (int i = 0; i < 200000; ++i)  // a list would be searched for minutes
    {
        const AcGePoint3d P(i * 0.1, 7, -i);
        ASSERT_FALSE(known.containsPoint(P));
        known.add(P);
    }
    EXPECT_TRUE(known.containsPoint({10000, 7, -100000}));
}
}  // namespace
