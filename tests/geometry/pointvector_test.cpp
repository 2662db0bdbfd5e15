#include <gtest/gtest.h>

#include <numbers>

#include "geassign.h"
#include "gemat3d.h"
#include "tests/geometry/randomframe.h"

namespace
{
const double pi = std::numbers::pi;
}

TEST(Tolerances, startAtTheHostsDefaults)
{
    const AcGeTol tol;
    EXPECT_EQ(tol.equalPoint(), 1e-10);
    EXPECT_EQ(tol.equalVector(), 1e-12);
    EXPECT_EQ(AcGeContext::gTol.equalPoint(), 1e-10);
    EXPECT_EQ(AcGeContext::gTol.equalVector(), 1e-12);
}

TEST(Tolerances, aChangedSharedToleranceHoldsForEveryComparison)
{
    const AcGeTol before = AcGeContext::gTol;
    const AcGePoint3d p(1, 1, 1);
    const AcGePoint3d q(1, 1, 1.0000005);
    EXPECT_FALSE(p == q);
    AcGeContext::gTol.setEqualPoint(1e-6);
    EXPECT_TRUE(p == q);
    EXPECT_FALSE(p.asVector() == q.asVector());
    AcGeContext::gTol.setEqualVector(1e-6);
    EXPECT_TRUE(p.asVector() == q.asVector());
    AcGeContext::gTol = before;
    EXPECT_FALSE(p == q);
}

TEST(Tolerances, aDistanceOfExactlyTheToleranceIsStillEqual)
{
    AcGeTol tol;
    tol.setEqualPoint(0.25);
    tol.setEqualVector(0.5);
    EXPECT_TRUE(AcGePoint3d(1, 0, 0).isEqualTo(AcGePoint3d(1.25, 0, 0), tol));
    EXPECT_FALSE(AcGePoint3d(1, 0, 0).isEqualTo(AcGePoint3d(1.2500001, 0, 0), tol));
    EXPECT_TRUE(AcGeVector3d(0, 0.5, 0).isZeroLength(tol));
    EXPECT_TRUE(AcGeVector3d(1, 0, 0).isEqualTo(AcGeVector3d(1.5, 0, 0), tol));
}

TEST(Points, moveByVectorsAndDifferByVectors)
{
    const AcGePoint3d p(1, 2, 3);
    EXPECT_EQ(p + AcGeVector3d(1, 1, 1), AcGePoint3d(2, 3, 4));
    EXPECT_EQ(p - AcGeVector3d(1, 1, 1), AcGePoint3d(0, 1, 2));
    EXPECT_EQ(p - AcGePoint3d(3, 2, 1), AcGeVector3d(-2, 0, 2));
    AcGePoint3d moving(p);
    moving += AcGeVector3d(1, 0, 0);
    moving -= AcGeVector3d(0, 1, 0);
    EXPECT_EQ(moving, AcGePoint3d(2, 1, 3));
    EXPECT_TRUE(moving != p);
}

TEST(Points, startAtTheOrigin)
{
    EXPECT_EQ(AcGePoint3d(), AcGePoint3d(0, 0, 0));
    EXPECT_EQ(AcGePoint3d::kOrigin, AcGePoint3d(0, 0, 0));
    EXPECT_EQ(AcGePoint3d().set(1, 2, 3).asVector(), AcGeVector3d(1, 2, 3));
}

TEST(Points, anIndexNamesACoordinate)
{
    AcGePoint3d p(1, 2, 3);
    p[2] = 5;
    const AcGePoint3d& fixed = p;
    EXPECT_EQ(fixed[0], 1);
    EXPECT_EQ(fixed[1], 2);
    EXPECT_EQ(p.z, 5);
}

TEST(Points, theDistanceIsTheSameBothWaysAndExactFarFromTheOrigin)
{
    Dice dice;
    for (int i = 0; i < 1000; ++i)
    {
        const AcGePoint3d p = dice.point(1e7);
        const AcGePoint3d q = dice.point(1e7);
        ASSERT_EQ(p.distanceTo(q), q.distanceTo(p));
    }
    EXPECT_EQ(AcGePoint3d(1e7 + 3, 1e7 + 4, 0).distanceTo(AcGePoint3d(1e7, 1e7, 0)), 5);
}

TEST(Points, arraysAndPointsAreViewsOfEachOther)
{
    AcGePoint3d p(1, 2, 3);
    asDblArray(p)[1] = 7;
    EXPECT_EQ(p.y, 7);
    const AcGePoint3d& fixed = p;
    EXPECT_EQ(asDblArray(fixed)[2], 3);

    double typed[3] = {4, 5, 6};
    asPnt3d(typed).z = 9;
    EXPECT_EQ(typed[2], 9);
    EXPECT_EQ(asVec3d(typed).x, 4);
    const double picked[3] = {1, 0, 2};
    EXPECT_EQ(asPnt3d(picked).z, 2);
    AcGeVector3d v = asVec3d(picked);
    asDblArray(v)[0] = 3;
    EXPECT_EQ(v.x, 3);
}

TEST(Vectors, addScaleAndMultiply)
{
    const AcGeVector3d v(1, 2, 3);
    const AcGeVector3d w(-2, 0, 4);
    EXPECT_EQ(v + w, AcGeVector3d(-1, 2, 7));
    EXPECT_EQ(v - w, AcGeVector3d(3, 2, -1));
    EXPECT_EQ(-v, AcGeVector3d(-1, -2, -3));
    EXPECT_EQ(v * 2, 2 * v);
    EXPECT_EQ(v * 2, AcGeVector3d(2, 4, 6));
    EXPECT_EQ(v / 2, AcGeVector3d(0.5, 1, 1.5));
    EXPECT_EQ(v.dotProduct(w), 10);
    EXPECT_EQ(v.crossProduct(w), AcGeVector3d(8, -10, 4));
    EXPECT_EQ(AcGeVector3d(2, 3, 6).lengthSqrd(), 49);
    EXPECT_EQ(AcGeVector3d(2, 3, 6).length(), 7);
}

TEST(Vectors, haveTheAxesReadyMade)
{
    EXPECT_EQ(AcGeVector3d::kXAxis.crossProduct(AcGeVector3d::kYAxis), AcGeVector3d::kZAxis);
    EXPECT_EQ(AcGeVector3d::kIdentity, AcGeVector3d());
}

TEST(Vectors, comeToUnitLengthUnlessTheyHaveNone)
{
    EXPECT_EQ(AcGeVector3d(0, 3, 4).normal(), AcGeVector3d(0, 0.6, 0.8));
    AcGeVector3d v(0, 0, -5);
    EXPECT_EQ(v.normalize(), AcGeVector3d(0, 0, -1));
    EXPECT_EQ(v, AcGeVector3d(0, 0, -1));
    const AcGeVector3d tiny(1e-13, 0, 0);
    EXPECT_TRUE(tiny.isZeroLength());
    EXPECT_EQ(tiny.normal().x, 1e-13);
}

TEST(Vectors, areParallelInEitherSense)
{
    const AcGeVector3d v(1, 2, 3);
    EXPECT_TRUE(v.isParallelTo(v * 1e6));
    EXPECT_TRUE(v.isParallelTo(v * -0.001));
    EXPECT_FALSE(v.isParallelTo(AcGeVector3d(1, 2, 3.0001)));
    EXPECT_FALSE(v.isParallelTo(AcGeVector3d()));
}

TEST(Vectors, theAngleLiesBetweenZeroAndPi)
{
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    EXPECT_EQ(x.angleTo(x), 0);
    EXPECT_DOUBLE_EQ(x.angleTo(AcGeVector3d(0, 0, 2)), pi / 2);
    EXPECT_DOUBLE_EQ(x.angleTo(AcGeVector3d(3, -3, 0)), pi / 4);
    EXPECT_EQ(x.angleTo(-x), pi);
}

TEST(Vectors, theAngleIsGoodNearZeroAndNearPi)
{
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    EXPECT_DOUBLE_EQ(x.angleTo(AcGeVector3d(1, 1e-9, 0)), 1e-9);
    EXPECT_NEAR(pi - x.angleTo(AcGeVector3d(-1, 1e-5, 0)), std::atan(1e-5), 1e-15);
    EXPECT_NEAR(AcGeVector3d(0.1, 0.2, 0.3).angleTo(AcGeVector3d(0.1, 0.2, 0.3)), 0, 1e-16);
}

TEST(Vectors, aZeroVectorMakesNoAngleInEitherSignOfZero)
{
    const AcGeVector3d zeros[] = {{0, 0, 0}, {-0.0, -0.0, -0.0}};
    for (const AcGeVector3d& zero : zeros)
    {
        EXPECT_EQ(zero.angleTo(AcGeVector3d(1, 1, 1)), 0);
        EXPECT_EQ(AcGeVector3d(1, 1, 1).angleTo(zero), 0);
        EXPECT_EQ(AcGeVector3d(-1, -1, -1).angleTo(zero), 0);
    }
}

TEST(Vectors, theAngleAboutAReferenceGoesAllTheWayRound)
{
    const AcGeVector3d x = AcGeVector3d::kXAxis;
    const AcGeVector3d y = AcGeVector3d::kYAxis;
    const AcGeVector3d z = AcGeVector3d::kZAxis;
    EXPECT_DOUBLE_EQ(x.angleTo(y, z), pi / 2);
    EXPECT_DOUBLE_EQ(y.angleTo(x, z), 3 * pi / 2);
    EXPECT_DOUBLE_EQ(x.angleTo(y, -z), 3 * pi / 2);
    EXPECT_EQ(x.angleTo(-x, z), pi);
    EXPECT_EQ(x.angleTo(x, z), 0);
}

TEST(Vectors, theAnglesRoundAPointInsideAQuadrilateralMakeAFullTurn)
{
    Dice dice;
    for (int i = 0; i < 1000; ++i)
    {
        const AcGeMatrix3d frame = dice.tiltedFrame(1e7);
        const AcGePoint3d inside = frame * AcGePoint3d(dice.between(1, 9), dice.between(1, 9), 0);
        const AcGePoint3d corners[] = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
        double sum = 0;
        for (int k = 0; k < 4; ++k)
        {
            sum += (frame * corners[k] - inside).angleTo(frame * corners[(k + 1) % 4] - inside);
        }
        ASSERT_NEAR(sum, 2 * pi, 1e-8);
    }
}
