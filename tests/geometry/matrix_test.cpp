#include "gemat3d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <numbers>

#include "geplane.h"
#include "tests/geometry/randomframe.h"

namespace
{
const double pi = std::numbers::pi;
const AcGeVector3d axisZ = AcGeVector3d::kZAxis;

bool sameBits(const AcGeMatrix3d& a, const AcGeMatrix3d& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

double difference(const AcGeMatrix3d& a, const AcGeMatrix3d& b)
{
    double worst = 0;
    for (int i = 0; i < 16; ++i)
    {
        worst = std::max(worst, std::abs((&a.entry[0][0])[i] - (&b.entry[0][0])[i]));
    }
    return worst;
}

void expectNear(const AcGePoint3d& actual, const AcGePoint3d& expected, double limit)
{
    EXPECT_LE(actual.distanceTo(expected), limit)
        << actual.x << ' ' << actual.y << ' ' << actual.z << " instead of " << expected.x << ' '
        << expected.y << ' ' << expected.z;
}
}  // namespace

TEST(Matrices, startAsTheIdentity)
{
    AcGeMatrix3d m = AcGeMatrix3d::translation(AcGeVector3d(1, 2, 3));
    EXPECT_FALSE(sameBits(m, AcGeMatrix3d::kIdentity));
    EXPECT_TRUE(sameBits(m.setToIdentity(), AcGeMatrix3d::kIdentity));
    for (int i = 0; i < 4; ++i)
    {
        for (int j = 0; j < 4; ++j)
        {
            EXPECT_EQ(AcGeMatrix3d().entry[i][j], i == j);
        }
    }
}

TEST(Matrices, theProductAppliesTheRightFactorFirst)
{
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(pi / 2, axisZ);
    const AcGeMatrix3d shift = AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0));
    const AcGePoint3d p(1, 0, 0);
    expectNear(shift * turn * p, AcGePoint3d(10, 1, 0), 1e-14);
    expectNear(turn * shift * p, AcGePoint3d(0, 11, 0), 1e-14);
    EXPECT_TRUE(sameBits(AcGeMatrix3d(turn).preMultBy(shift), shift * turn));
    EXPECT_TRUE(sameBits(AcGeMatrix3d(turn).postMultBy(shift), turn * shift));
}

TEST(Matrices, pointsAreShiftedAndVectorsAreNot)
{
    const AcGeMatrix3d shift = AcGeMatrix3d::translation(AcGeVector3d(10, 20, 30));
    EXPECT_EQ(shift * AcGePoint3d(1, 2, 3), AcGePoint3d(11, 22, 33));
    EXPECT_EQ(shift * AcGeVector3d(1, 2, 3), AcGeVector3d(1, 2, 3));
    EXPECT_EQ(AcGePoint3d(1, 2, 3).transformBy(shift), AcGePoint3d(11, 22, 33));
}

TEST(Matrices, rotationIsRightHandedAboutEveryAxis)
{
    struct Row
    {
        AcGeVector3d axis;
        AcGePoint3d from, to;
    };
    const Row rows[] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}, {{0, 0, -3}, {1, 0, 0}, {0, -1, 0}},
        {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, {{0, 2, 0}, {0, 0, 1}, {1, 0, 0}},
        {{0, 0, 1}, {0, 0, 5}, {0, 0, 5}},
    };
    for (const Row& row : rows)
    {
        expectNear(AcGeMatrix3d::rotation(pi / 2, row.axis) * row.from, row.to, 1e-15);
    }
    expectNear(AcGeMatrix3d::rotation(2 * pi / 3, AcGeVector3d(1, 1, 1)) * AcGePoint3d(1, 2, 3),
               AcGePoint3d(3, 1, 2), 1e-14);
}

TEST(Matrices, rotationKeepsItsCentre)
{
    const AcGePoint3d centre(100, 50, 7);
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(pi / 2, axisZ, centre);
    expectNear(turn * centre, centre, 1e-13);
    expectNear(turn * AcGePoint3d(101, 50, 7), AcGePoint3d(100, 51, 7), 1e-13);
}

TEST(Matrices, aZeroAngleOrNoAxisIsTheIdentityToTheLastBit)
{
    const AcGePoint3d centre(1e7, 0.1, 3);
    const AcGeVector3d axis(1, 2, 3);
    for (const double zero : {0.0, -0.0})
    {
        EXPECT_TRUE(sameBits(AcGeMatrix3d::rotation(zero, axis, centre), AcGeMatrix3d::kIdentity));
    }
    EXPECT_TRUE(sameBits(AcGeMatrix3d::rotation(1, AcGeVector3d()), AcGeMatrix3d::kIdentity));
}

TEST(Matrices, aTurnInPlanLeavesTheThirdCoordinateAloneAndHoldsNoNegativeZero)
{
    for (const AcGeVector3d& axis : {axisZ, AcGeVector3d(0, 0, -1)})
    {
        for (const double angle : {0.3, -0.3, 2.0, -2.0})
        {
            const AcGeMatrix3d m = AcGeMatrix3d::rotation(angle, axis);
            EXPECT_EQ((m * AcGePoint3d(3, 4, 0.1)).z, 0.1);
            for (int i = 0; i < 16; ++i)
            {
                const double value = (&m.entry[0][0])[i];
                EXPECT_FALSE(value == 0 && std::signbit(value)) << "entry " << i;
            }
        }
    }
}

TEST(Matrices, setTranslationReplacesOnlyTheTranslation)
{
    AcGeMatrix3d m = AcGeMatrix3d::rotation(1, axisZ);
    const AcGeMatrix3d before = m;
    m.setTranslation(AcGeVector3d(1, 2, 3));
    EXPECT_EQ(m.translation(), AcGeVector3d(1, 2, 3));
    EXPECT_EQ(m * AcGeVector3d(5, 6, 7), before * AcGeVector3d(5, 6, 7));
    m.setToTranslation(AcGeVector3d(4, 5, 6));
    EXPECT_TRUE(sameBits(m, AcGeMatrix3d::translation(AcGeVector3d(4, 5, 6))));
}

TEST(Matrices, theColumnsAreTheAxesAndTheOrigin)
{
    AcGeMatrix3d m;
    m.setCoordSystem(AcGePoint3d(1, 2, 3), AcGeVector3d(0, 1, 0), AcGeVector3d(0, 0, 1),
                     AcGeVector3d(1, 0, 0));
    EXPECT_EQ(m.entry[1][0], 1);
    EXPECT_EQ(m.entry[0][2], 1);
    EXPECT_EQ(m.entry[2][3], 3);
    EXPECT_EQ(m * AcGePoint3d(10, 20, 30), AcGePoint3d(31, 12, 23));

    AcGePoint3d origin;
    AcGeVector3d x, y, z;
    m.getCoordSystem(origin, x, y, z);
    EXPECT_EQ(origin, AcGePoint3d(1, 2, 3));
    EXPECT_EQ(x, AcGeVector3d(0, 1, 0));
    EXPECT_EQ(y, AcGeVector3d(0, 0, 1));
    EXPECT_EQ(z, AcGeVector3d(1, 0, 0));
}

TEST(Matrices, transposingTurnsColumnsIntoRows)
{
    AcGeMatrix3d m;
    m.entry[0][2] = 5;
    m.entry[1][3] = 7;
    m.transposeBy();
    EXPECT_EQ(m.entry[2][0], 5);
    EXPECT_EQ(m.entry[0][2], 0);
    EXPECT_EQ(m.entry[3][1], 7);
}

TEST(Matrices, theInverseOfAPlainShiftIsExact)
{
    const AcGeVector3d shift(1e7 + 0.123, -3.3, 0);
    const AcGeMatrix3d back = AcGeMatrix3d::translation(shift).inverse();
    EXPECT_TRUE(sameBits(back, AcGeMatrix3d::translation(AcGeVector3d() - shift)));
    EXPECT_TRUE(sameBits(AcGeMatrix3d().inverse(), AcGeMatrix3d::kIdentity));
}

TEST(Matrices, everyTurnedFrameIsOrthonormalAndItsInverseIsItsTranspose)
{
    Dice dice;
    int transposed = 0;
    for (int i = 0; i < 2000; ++i)
    {
        AcGeMatrix3d turn = dice.tiltedFrame(0);
        ASSERT_TRUE(turn.isUniScaledOrtho());
        ASSERT_NEAR(turn.det(), 1, 1e-14);
        const AcGeMatrix3d back = turn.inverse();
        ASSERT_LE(difference(turn * back, AcGeMatrix3d()), 4e-15);
        ASSERT_LE(difference(back * turn, AcGeMatrix3d()), 4e-15);
        transposed += sameBits(turn.transposeBy(), back);
    }
    EXPECT_GT(transposed, 1900);
}

TEST(Matrices, theInverseUndoesScalesSlantsAndMirrors)
{
    Dice dice;
    for (int i = 0; i < 2000; ++i)
    {
        AcGeMatrix3d m;
        m.setCoordSystem(dice.point(1000), dice.vector(5), dice.vector(5), dice.vector(5));
        if (std::abs(m.det()) < 1)
        {
            continue;
        }
        const AcGePoint3d p = dice.point(1000);
        ASSERT_LE((m.inverse() * (m * p)).distanceTo(p), 1e-8);
    }
    AcGeMatrix3d mirror;
    mirror.entry[0][0] = -1;
    EXPECT_TRUE(sameBits(mirror.inverse(), mirror));
}

TEST(Matrices, axesReadFromAFileWithFewDecimalsAreInvertedAndNotTransposed)
{
    AcGeMatrix3d m;
    m.setCoordSystem(AcGePoint3d(), AcGeVector3d(0.866025, 0.5, 0), AcGeVector3d(-0.5, 0.866025, 0),
                     axisZ);
    const AcGePoint3d p(1e7, 1e7, 0);
    expectNear(m.inverse() * (m * p), p, 1e-8);
}

TEST(Matrices, scalingKeepsItsCenter)
{
    const AcGeMatrix3d m = AcGeMatrix3d::scaling(2, AcGePoint3d(1, 1, 1));
    EXPECT_EQ(m * AcGePoint3d(1, 1, 1), AcGePoint3d(1, 1, 1));
    EXPECT_EQ(m * AcGePoint3d(2, 3, 4), AcGePoint3d(3, 5, 7));
    EXPECT_EQ(m.det(), 8);
}

TEST(Matrices, onlyEqualSquareAxesCountAsUniformScale)
{
    AcGeMatrix3d m = AcGeMatrix3d::scaling(5) * AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 2, 3));
    EXPECT_TRUE(m.isUniScaledOrtho());
    AcGeMatrix3d mirror;
    mirror.entry[2][2] = -1;
    EXPECT_TRUE(mirror.isUniScaledOrtho());
    EXPECT_EQ(mirror.det(), -1);

    AcGeMatrix3d stretched;
    stretched.entry[1][1] = 1.001;
    EXPECT_FALSE(stretched.isUniScaledOrtho());
    AcGeMatrix3d slanted;
    slanted.entry[0][1] = 0.001;
    EXPECT_FALSE(slanted.isUniScaledOrtho());
    EXPECT_FALSE(AcGeMatrix3d::scaling(0).isUniScaledOrtho());
}

TEST(Matrices, planeToWorldFollowsTheArbitraryAxisRule)
{
    struct Row
    {
        AcGeVector3d normal, x, y;
    };
    const Row rows[] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}},
        {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},  {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}},
        {{0, 0, 50}, {1, 0, 0}, {0, 1, 0}},
    };
    for (const Row& row : rows)
    {
        AcGeMatrix3d expected;
        expected.setCoordSystem(AcGePoint3d(), row.x, row.y, row.normal / row.normal.length());
        const AcGeMatrix3d plane = AcGeMatrix3d::planeToWorld(row.normal);
        EXPECT_TRUE(sameBits(plane, expected)) << row.normal.x << row.normal.y << row.normal.z;
        EXPECT_LE(difference(plane * AcGeMatrix3d::worldToPlane(row.normal), AcGeMatrix3d()), 0);
    }
}

TEST(Matrices, aPlaneWithAnOriginCarriesItsZeroThere)
{
    const AcGePlane plane(AcGePoint3d(5, 6, 7), AcGeVector3d(1, 0, 0));
    EXPECT_EQ(AcGeMatrix3d::planeToWorld(plane) * AcGePoint3d(1, 2, 3), AcGePoint3d(8, 7, 9));
    EXPECT_EQ(AcGeMatrix3d::worldToPlane(plane) * AcGePoint3d(8, 7, 9), AcGePoint3d(1, 2, 3));
}

TEST(Matrices, aViewFrameIsSquareAndUprightWhateverTheView)
{
    Dice dice;
    for (int i = 0; i < 1000; ++i)
    {
        const AcGeVector3d view = dice.vector(1);
        const AcGeVector3d direction = view * (1 / view.length());
        const AcGeMatrix3d frame = AcGeMatrix3d::planeToWorld(direction) *
                                   AcGeMatrix3d::rotation(-dice.between(0, 2 * pi), axisZ);
        ASSERT_TRUE(frame.isUniScaledOrtho());
        ASSERT_NEAR(frame.det(), 1, 1e-14);
        ASSERT_LE((frame * axisZ - direction).length(), 1e-15);
    }
}
