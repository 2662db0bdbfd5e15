#include "host/geometry/ocs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "geplane.h"
#include "tests/geometry/randomframe.h"

using host::Ocs;

namespace
{
const double pi = std::numbers::pi;

bool isClean(const AcGeVector3d& v)
{
    const double parts[] = {v.x, v.y, v.z};
    for (const double part : parts)
    {
        if (std::isnan(part) || (part == 0 && std::signbit(part)))
        {
            return false;
        }
    }
    return true;
}
}  // namespace

TEST(ObjectSystem, hasTheAxesOfTheArbitraryAxisRule)
{
    struct Row
    {
        AcGeVector3d normal, x, y;
    };
    const Row rows[] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},
        {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}},
        {{-0.0, -0.0, 1}, {1, 0, 0}, {0, 1, 0}},
        {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
        {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
        {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}},
        {{0, 0.6, 0.8}, {-1, 0, 0}, {0, -0.8, 0.6}},
        {{0, 0, 1e-30}, {1, 0, 0}, {0, 1, 0}},   // short, but it points somewhere
        {{0, 0, 1e-200}, {1, 0, 0}, {0, 1, 0}},  // its square is zero
        {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}},       // the file has no normal
    };
    for (const Row& row : rows)
    {
        const Ocs ocs(row.normal);
        EXPECT_LE((ocs.xAxis() - row.x).length(), 1e-15) << row.normal.y << ' ' << row.normal.z;
        EXPECT_LE((ocs.yAxis() - row.y).length(), 1e-15) << row.normal.y << ' ' << row.normal.z;
        EXPECT_TRUE(isClean(ocs.xAxis()) && isClean(ocs.yAxis()) && isClean(ocs.normal()));
    }
}

TEST(ObjectSystem, changesItsRuleAtExactlyOneSixtyFourth)
{
    const double limit = 1.0 / 64;
    const double below = std::nextafter(limit, 0);
    const auto unit = [](double x) { return AcGeVector3d(x, 0, std::sqrt(1 - x * x)); };
    EXPECT_EQ(Ocs(unit(limit)).xAxis(), AcGeVector3d::kYAxis);
    EXPECT_GT(Ocs(unit(below)).xAxis().x, 0.99);
    EXPECT_EQ(Ocs(unit(-limit)).xAxis(), -AcGeVector3d::kYAxis);
    EXPECT_GT(Ocs(unit(-below)).xAxis().x, 0.99);
    const AcGeVector3d aboutY(0, unit(limit).x, unit(limit).z);
    EXPECT_EQ(Ocs(aboutY).xAxis(), -AcGeVector3d::kXAxis);
    const AcGeVector3d justBelowAboutY(0, unit(below).x, unit(below).z);
    EXPECT_EQ(Ocs(justBelowAboutY).xAxis(), AcGeVector3d::kXAxis);
}

TEST(ObjectSystem, isTheWorldForADamagedNormal)
{
    const double infinite = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {infinite, -infinite, none})
    {
        EXPECT_EQ(Ocs(AcGeVector3d(bad, 0, 1)).normal(), AcGeVector3d::kZAxis);
    }
    EXPECT_EQ(Ocs(AcGeVector3d(1.7e308, 1.7e308, 0)).normal(), AcGeVector3d::kZAxis);
    EXPECT_EQ(Ocs(AcGeVector3d(1e300, 0, 0)).normal(), AcGeVector3d::kXAxis);
}

TEST(ObjectSystem, isOrthonormalAndRightHandedForEveryNormal)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const AcGeVector3d normal = dice.vector(i % 2 ? 1 : 1000);
        const Ocs ocs(normal);
        const AcGeMatrix3d m = ocs.matrix();
        ASSERT_NEAR(m.det(), 1, 1e-14);
        ASSERT_TRUE(m.isUniScaledOrtho());
        ASSERT_LE((ocs.normal() - normal / normal.length()).length(), 1e-15);
        ASSERT_LE((AcGePlane(AcGePoint3d(), normal).normal() - ocs.normal()).length(), 0);
        ASSERT_LE((normal.perpVector() - ocs.xAxis()).length(), 0);
    }
}

TEST(ObjectSystem, leavesPlanCoordinatesAsTheyAre)
{
    const Ocs ocs(AcGeVector3d::kZAxis);
    const AcGePoint3d p(1e7 + 0.1, -1e7 / 3, 0.7);
    for (const AcGePoint3d& same : {ocs.toWorld(p), ocs.toObject(p)})
    {
        EXPECT_EQ(same.x, p.x);
        EXPECT_EQ(same.y, p.y);
        EXPECT_EQ(same.z, p.z);
    }
}

TEST(ObjectSystem, bringsPointsAndVectorsThereAndBack)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        const Ocs ocs(dice.vector(1));
        const AcGePoint3d p = dice.point(1e7);
        ASSERT_LE(ocs.toWorld(ocs.toObject(p)).distanceTo(p), 2e-8);
        ASSERT_LE(ocs.toObject(p).distanceTo(ocs.matrix().inverse() * p), 2e-8);
        const AcGeVector3d v = dice.vector(1);
        ASSERT_LE((ocs.toObject(ocs.toWorld(v)) - v).length(), 1e-15);
    }
}

TEST(ObjectSystem, measuresAnglesFromItsOwnXAxis)
{
    const Ocs down(AcGeVector3d(0, 0, -1));
    EXPECT_EQ(down.angleOf(AcGeVector3d(-5, 0, 0)), 0);
    EXPECT_EQ(down.angleOf(AcGeVector3d(5, 0, 0)), pi);
    EXPECT_DOUBLE_EQ(down.angleOf(AcGeVector3d(0, 5, 3)), pi / 2);
    EXPECT_EQ(down.angleOf(AcGeVector3d(0, 0, 5)), 0);

    Dice dice;
    for (int i = 0; i < 1000; ++i)
    {
        const Ocs ocs(dice.vector(1));
        const double angle = dice.between(-3, 3);
        ASSERT_NEAR(ocs.angleOf(ocs.directionWcs(angle)), angle, 1e-14);
    }
}

TEST(Planes, fromAnEquationHaveTheNearestPointToTheOriginAsTheirs)
{
    const AcGePlane plane(0, 0, 2, -10);
    EXPECT_EQ(plane.normal(), AcGeVector3d::kZAxis);
    EXPECT_EQ(plane.pointOnPlane(), AcGePoint3d(0, 0, 5));
    const AcGePlane slanted(1, 2, 2, 9);
    EXPECT_EQ(slanted.pointOnPlane(), AcGePoint3d(-1, -2, -2));
}

TEST(Planes, fromTwoDirectionsTakeTheFirstAsTheirXAxis)
{
    const AcGePlane plane(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 5, 0), AcGeVector3d(0, 7, 2));
    AcGePoint3d origin;
    AcGeVector3d x, y;
    plane.getCoordSystem(origin, x, y);
    EXPECT_EQ(origin, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(x, AcGeVector3d::kYAxis);
    EXPECT_EQ(y, AcGeVector3d::kZAxis);
    EXPECT_EQ(plane.normal(), AcGeVector3d::kXAxis);
}

TEST(Planes, haveTheWorldsReadyMade)
{
    AcGePoint3d origin;
    AcGeVector3d x, y;
    AcGePlane::kXYPlane.getCoordSystem(origin, x, y);
    EXPECT_EQ(origin, AcGePoint3d::kOrigin);
    EXPECT_EQ(x, AcGeVector3d::kXAxis);
    EXPECT_EQ(y, AcGeVector3d::kYAxis);
    EXPECT_EQ(AcGePlane::kXYPlane.normal(), AcGeVector3d::kZAxis);
}
