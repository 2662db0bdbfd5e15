#include "host/editor/ucs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "aced.h"
#include "acedads.h"
#include "acutads.h"
#include "dbxutil.h"
#include "geassign.h"
#include "host/database/drawing.h"
#include "host/editor/view.h"
#include "tests/geometry/randomframe.h"
#include "tests/support/session.h"

namespace
{
using std::numbers::pi;

AcGeMatrix3d turned(double degrees, const AcGePoint3d& origin = {})
{
    const double angle = degrees * pi / 180;
    return host::frameOf(origin, {std::cos(angle), std::sin(angle), 0},
                         {-std::sin(angle), std::cos(angle), 0}, {0, 0, 1});
}

AcGeMatrix3d current()
{
    AcGeMatrix3d frame;
    EXPECT_EQ(acedGetCurrentUCS(frame), Acad::eOk);
    return frame;
}

void expectSame(const AcGeMatrix3d& a, const AcGeMatrix3d& b)
{
    for (int i = 0; i < 16; ++i)
    {
        EXPECT_NEAR((&a.entry[0][0])[i], (&b.entry[0][0])[i], 1e-14) << i;
    }
}

TEST(CurrentUcs, formerOnesComeBackOneByOne)
{
    support::Session session;
    EXPECT_FALSE(acedRestorePreviousUCS());
    EXPECT_EQ(acedSetCurrentUCS(turned(30)), Acad::eOk);
    EXPECT_EQ(acedSetCurrentUCS(turned(60)), Acad::eOk);
    expectSame(current(), turned(60));
    EXPECT_TRUE(acedRestorePreviousUCS());
    expectSame(current(), turned(30));
    EXPECT_TRUE(acedRestorePreviousUCS());
    expectSame(current(), AcGeMatrix3d());
    EXPECT_FALSE(acedRestorePreviousUCS());
    expectSame(current(), AcGeMatrix3d());
}

TEST(CurrentUcs, settingTheSameOneAgainIsAStepOfItsOwn)
{
    support::Session session;
    acedSetCurrentUCS(AcGeMatrix3d());
    EXPECT_TRUE(acedRestorePreviousUCS());
    EXPECT_FALSE(acedRestorePreviousUCS());
}

TEST(CurrentUcs, tenFormerOnesAreKeptInEachSpace)
{
    support::Session session;
    for (int i = 1; i <= 12; ++i)
    {
        acedSetCurrentUCS(turned(i));
    }
    host::stateOf(session.drawing()).paperSpace = true;
    acedSetCurrentUCS(turned(80));
    EXPECT_TRUE(acedRestorePreviousUCS());
    EXPECT_FALSE(acedRestorePreviousUCS());
    host::stateOf(session.drawing()).paperSpace = false;
    int steps = 0;
    while (acedRestorePreviousUCS())
    {
        ++steps;
    }
    EXPECT_EQ(steps, 10);
    expectSame(current(), turned(2));
}

TEST(CurrentUcs, frameThatIsNotSquareIsRefused)
{
    support::Session session;
    AcGeMatrix3d scaled, skew, mirrored, projective, noNumber;
    scaled.entry[0][0] = 1.00001;
    skew.entry[0][1] = 1e-5;
    mirrored.entry[2][2] = -1;
    projective.entry[3][0] = 1;
    noNumber.entry[0][3] = std::numeric_limits<double>::quiet_NaN();
    for (const AcGeMatrix3d& frame : {scaled, skew, mirrored, projective, noNumber})
    {
        EXPECT_EQ(acedSetCurrentUCS(frame), Acad::eInvalidInput);
    }
    expectSame(current(), AcGeMatrix3d());
    EXPECT_FALSE(acedRestorePreviousUCS());
}

TEST(CurrentUcs, slightSkewIsTakenOut)
{
    support::Session session;
    AcGeMatrix3d frame;
    frame.entry[1][0] = 5e-7;
    ASSERT_EQ(acedSetCurrentUCS(frame), Acad::eOk);
    ads_point there = {1e7, 1e7, 0}, back;
    acdbUcs2Wcs(there, there, false);
    acdbWcs2Ucs(there, back, false);
    EXPECT_NEAR(back[X], 1e7, 1e-7);
    EXPECT_NEAR(back[Y], 1e7, 1e-7);
}

TEST(CurrentUcs, settingClearsTheName)
{
    support::Session session;
    host::stateOf(session.drawing()).modelUcs.name = L"site";
    acedSetCurrentUCS(AcGeMatrix3d());
    EXPECT_EQ(host::stateOf(session.drawing()).modelUcs.name, L"");
    acedRestorePreviousUCS();
    EXPECT_EQ(host::stateOf(session.drawing()).modelUcs.name, L"site");
}

TEST(CurrentUcs, viewFollowsWhenItIsAskedTo)
{
    support::Session session;
    host::DrawingState& state = host::stateOf(session.drawing());
    acedSetCurrentUCS(turned(30));
    EXPECT_EQ(state.view.twist, 0);
    state.ucsFollow = 1;
    acedSetCurrentUCS(turned(40));
    EXPECT_NEAR(state.view.twist, 2 * pi - 40 * pi / 180, 1e-14);
    acedRestorePreviousUCS();
    EXPECT_NEAR(state.view.twist, 2 * pi - 30 * pi / 180, 1e-14);
    const AcGeMatrix3d frame = host::viewFrame(state.view);
    EXPECT_NEAR(host::axisOf(frame, 0).x, std::cos(pi / 6), 1e-14);  // along the UCS again
    state.paperSpace = true;
    acedSetCurrentUCS(turned(50));
    EXPECT_NEAR(state.view.twist, 2 * pi - 30 * pi / 180, 1e-14);
}

TEST(CurrentUcs, viewStaysFromTheNextUcsOnWhenFollowingIsTurnedOff)
{
    support::Session session;
    host::DrawingState& state = host::stateOf(session.drawing());
    state.ucsFollow = 1;
    session.run(
        []
        {
            resbuf value{};
            EXPECT_EQ(acedGetVar(L"UCSFOLLOW", &value), RTNORM);
            value.resval.rint = 0;
            EXPECT_EQ(acedSetVar(L"UCSFOLLOW", &value), RTNORM);
            EXPECT_EQ(acedSetCurrentUCS(turned(30)), Acad::eOk);
        });
    expectSame(current(), turned(30));
    EXPECT_EQ(state.view.twist, 0);
}

TEST(UcsConversion, isExactFarFromTheOrigin)
{
    support::Session session;
    const AcGePoint3d origin(2179000.25, 463000.5, 120);
    acedSetCurrentUCS(turned(37, origin));
    ads_point world = {2179123.375, 463456.625, 120}, ucs, back;
    ASSERT_TRUE(acdbWcs2Ucs(world, ucs, false));
    ASSERT_TRUE(acdbUcs2Wcs(ucs, back, false));
    EXPECT_NEAR(back[X], world[X], 1e-9);
    EXPECT_NEAR(back[Y], world[Y], 1e-9);
    EXPECT_EQ(back[Z], world[Z]);
    ads_point corner = {2179000.25, 463000.5, 120};
    acdbWcs2Ucs(corner, corner, false);  // in place
    EXPECT_EQ(asPnt3d(corner), AcGePoint3d(0, 0, 0));
}

TEST(UcsConversion, pointFarFromTheOriginKeepsItsPlaceInATiltedUcs)
{
    Dice dice;
    double worst = 0;
    for (int i = 0; i < 1000; ++i)
    {
        const AcGeMatrix3d ucs = dice.tiltedFrame(1e7);
        const AcGePoint3d local = dice.point(100);
        worst = std::max(worst, host::worldToUcs(ucs, ucs * local).distanceTo(local));
    }
    // The error of storing the world point at 1e7, and no more.
    EXPECT_LE(worst, 6e-9);
    EXPECT_EQ(host::worldToUcs(AcGeMatrix3d(), AcGePoint3d(1e7 + 0.1, 2, 3)).x, 1e7 + 0.1);
}

// The world's system has a shorter computation. A system that differs from it by less than any
// digit of these points uses the long one, so both must agree to the last bit.
TEST(UcsConversion, ofTheWorldAgreesWithTheLongWayToTheLastBit)
{
    support::Session session;
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double values[] = {0.0, -0.0, 1.5, -2179123.375, 1e-310, infinity, -infinity, nan};
    AcGeMatrix3d nearly;
    nearly.entry[0][3] = -0.0;
    for (const double x : values)
    {
        for (const double y : values)
        {
            for (const double z : values)
            {
                ads_point given = {x, y, z}, quick, slow;
                host::stateOf(session.drawing()).modelUcs.toWorld = AcGeMatrix3d();
                ASSERT_TRUE(acdbWcs2Ucs(given, quick, false));
                host::stateOf(session.drawing()).modelUcs.toWorld = nearly;
                ASSERT_TRUE(acdbWcs2Ucs(given, slow, false));
                for (int i = 0; i < 3; ++i)
                {
                    EXPECT_EQ(std::signbit(quick[i]), std::signbit(slow[i])) << x << y << z << i;
                    EXPECT_EQ(std::isnan(quick[i]), std::isnan(slow[i])) << x << y << z << i;
                    EXPECT_TRUE(std::isnan(slow[i]) || quick[i] == slow[i]) << x << y << z << i;
                }
            }
        }
    }
}

TEST(UcsConversion, displacementIgnoresTheOrigin)
{
    support::Session session;
    acedSetCurrentUCS(turned(90, {100, 200, 300}));
    ads_point along = {1, 0, 0};
    acdbUcs2Wcs(along, along, true);
    EXPECT_NEAR(along[X], 0, 1e-15);
    EXPECT_EQ(along[Y], 1);
    acdbWcs2Ucs(along, along, true);
    EXPECT_EQ(along[X], 1);
}

TEST(UcsConversion, transNamesWorldUcsAndDisplay)
{
    support::Session session;
    acedSetCurrentUCS(turned(0, {10, 20, 30}));
    host::stateOf(session.drawing()).view.twist = pi / 2;
    resbuf code[4] = {};
    for (short i = 0; i < 4; ++i)
    {
        code[i].restype = RTSHORT;
        code[i].resval.rint = i;
    }
    const ads_point point = {1, 2, 3};
    ads_point result;
    EXPECT_EQ(acedTrans(point, &code[1], &code[0], 0, result), RTNORM);
    EXPECT_EQ(asPnt3d(result), AcGePoint3d(11, 22, 33));
    EXPECT_EQ(acedTrans(point, &code[1], &code[0], 1, result), RTNORM);
    EXPECT_EQ(asPnt3d(result), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(acedTrans(point, &code[0], &code[2], 0, result), RTNORM);
    EXPECT_NEAR(result[X], -2, 1e-14);  // the screen's X axis is the world's minus Y
    EXPECT_NEAR(result[Y], 1, 1e-14);
    EXPECT_EQ(acedTrans(point, &code[0], &code[3], 0, result), RTERROR);
}

TEST(UcsConversion, failsWithoutADocument)
{
    ads_point point = {1, 2, 3}, result = {4, 5, 6};
    AcGeMatrix3d frame;
    for (const bool displacement : {false, true})
    {
        EXPECT_FALSE(acdbWcs2Ucs(point, point, displacement));
        EXPECT_FALSE(acdbUcs2Wcs(point, point, displacement));
        EXPECT_FALSE(acdbWcs2Ucs(point, result, displacement));
        EXPECT_FALSE(acdbUcs2Wcs(point, result, displacement));
    }
    EXPECT_EQ(asPnt3d(point), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(asPnt3d(result), AcGePoint3d(4, 5, 6));
    EXPECT_FALSE(acedRestorePreviousUCS());
    EXPECT_EQ(acedSetCurrentUCS(frame), Acad::eNoDatabase);
}

TEST(Angle, isInTheHalfOpenFullTurn)
{
    struct Row
    {
        double dx, dy, angle;
    };
    const Row rows[] = {
        {1, 0, 0},         {0, 1, pi / 2}, {-1, 0, pi},    {-1, -0.0, pi},
        {0, -1, 1.5 * pi}, {1, -0.0, 0},   {1, -1e-20, 0},  // rounds to the full turn
        {0, 0, 0},
    };
    for (const Row& row : rows)
    {
        const ads_point from = {0, 0, 5}, to = {row.dx, row.dy, -7};
        const double angle = acutAngle(from, to);
        EXPECT_NEAR(angle, row.angle, 1e-15) << row.dx << ' ' << row.dy;
        EXPECT_GE(angle, 0);
        EXPECT_LT(angle, 2 * pi);
        EXPECT_FALSE(std::signbit(angle));
    }
}

TEST(Angle, takesItsPointsAsTheyAreInAnyUcs)
{
    support::Session session;
    const ads_point from = {1, 2, 3}, to = {1, 5, 3};
    for (const double degrees : {0, 30, 200})
    {
        acedSetCurrentUCS(turned(degrees, {10, 20, 30}));
        EXPECT_EQ(acutAngle(from, to), pi / 2) << degrees;
    }
}
}  // namespace
