#include "output/tolerance.h"

#include <cfloat>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace
{
const double infinity = std::numeric_limits<double>::infinity();

TEST(Tolerance, isTheHostsOwnAtOrdinaryCoordinates)
{
    EXPECT_EQ(atLeastRounding(1e-10, 0), 1e-10);
    EXPECT_EQ(atLeastRounding(1e-10, 28000), 1e-10);
    EXPECT_EQ(atLeastRounding(1e-6, 1e7), 1e-6);
}

TEST(Tolerance, isAFewUnitsInTheLastPlaceAtSurveyCoordinates)
{
    const double unit = std::nextafter(1e7, 2e7) - 1e7;
    EXPECT_GE(atLeastRounding(1e-10, 1e7), 4 * unit);
    EXPECT_LE(atLeastRounding(1e-10, 1e7), 32 * unit);
}

TEST(Tolerance, doesNotCountCoordinatesThatCannotBeMeasured)
{
    EXPECT_EQ(largestCoordinate(AcGePoint3d(-3, 2, 1)), 3);
    EXPECT_EQ(largestCoordinate(AcGePoint3d(1, DBL_MAX, -7)), 7);
    EXPECT_EQ(largestCoordinate(AcGePoint3d(std::nan(""), infinity, -infinity)), 0);
}

TEST(Tolerance, tellsNumbersThatHaveADistanceFromThoseThatHaveNone)
{
    for (const double good : {0.0, -1e7, 1e150, DBL_MIN})
    {
        EXPECT_TRUE(isMeasurable(good)) << good;
    }
    for (const double bad : {DBL_MAX, -DBL_MAX, infinity, -infinity, std::nan(""), 1.1e150})
    {
        EXPECT_FALSE(isMeasurable(bad)) << bad;
        EXPECT_FALSE(isMeasurable(AcGePoint3d(bad, 0, 0)));
        EXPECT_FALSE(isMeasurable(AcGePoint3d(0, bad, 0)));
        EXPECT_FALSE(isMeasurable(AcGePoint3d(0, 0, bad)));
    }
}

TEST(Tolerance, comesBackWhenItWasBorrowed)
{
    const double former = AcGeContext::gTol.equalPoint();
    {
        const BorrowedTolerance outer(0.5);
        {
            const BorrowedTolerance inner(0.25);
            EXPECT_EQ(AcGeContext::gTol.equalPoint(), 0.25);
        }
        EXPECT_EQ(AcGeContext::gTol.equalPoint(), 0.5);
    }
    EXPECT_EQ(AcGeContext::gTol.equalPoint(), former);
}
}  // namespace
