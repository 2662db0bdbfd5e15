// The spans of lines and the point tests that they spare.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "engine/pointtests.h"
#include "output/tolerance.h"

namespace
{
// A point at a random distance from an edge, from far off down to the last place.
AcGePoint3d pointNear(const AcGePoint3d& a, const AcGePoint3d& b, std::mt19937_64& random)
{
    std::uniform_real_distribution<double> along(-0.2, 1.2), power(-14, 1);
    const AcGeVector3d edge = b - a;
    const double side = random() % 2 == 0 ? 1 : -1;
    const double off = side * std::pow(10, power(random));
    return a + edge * along(random) + AcGeVector3d(-edge.y, edge.x, 0) * off;
}

int spanned(const AcGePoint3dArray& outline, const AcGePoint3d& point, int axis)
{
    return lineSpan(outline, point, axis).locate(point);
}

TEST(PointsOfLineSpans, areWhereTheTestOfTheOutlineSays)
{
    std::mt19937_64 random(20140321);
    std::uniform_real_distribution<double> place(-1, 1);
    long decided = 0;
    for (int quad = 0; quad < 20000; ++quad)
    {
        const double size = std::pow(10, double(random() % 7));
        const AcGePoint3d far(double(random() % 3) * 4e6, double(random() % 3) * 6e6, 0);
        AcGePoint3d q[4];
        for (AcGePoint3d& corner : q)
        {
            corner = far + AcGeVector3d(place(random), place(random), 0) * size;
        }
        if (quad % 4 != 0)  // the rectangles that the command draws
        {
            const AcGeVector3d along = q[1] - q[0];
            q[3] = q[0] + AcGeVector3d(-along.y, along.x, 0) * place(random);
            q[2] = q[1] + (q[3] - q[0]);
        }
        const BorrowedTolerance tolerance(atLeastRounding(1e-10, largestCoordinate(far) + size));
        AcGePoint3dArray outline;
        for (const AcGePoint3d& corner : q)
        {
            outline.append(corner);
        }
        for (int i = 0; i < 12; ++i)
        {
            const AcGePoint3d point = pointNear(q[i % 4], q[(i + 1) % 4], random);
            const int decision = spanned(outline, point, i % 2);
            const int tested = pointInQuad(point, q[0], q[1], q[2], q[3]);
            decided += decision != 0;
            ASSERT_TRUE(decision == 0 || decision == tested)
                << decision << " and " << tested << " for quad " << quad << ", point " << i;
        }
    }
    EXPECT_GT(decided, 70000) << "it hardly ever decides";
}

TEST(PointsOfLineSpans, areWhereTheTestOfTheCurveSays)
{
    std::mt19937_64 random(20140322);
    std::uniform_real_distribution<double> place(-1, 1);
    long decided = 0;
    for (int quad = 0; quad < 1000; ++quad)
    {
        const double size = std::pow(10, double(random() % 6));
        const AcGePoint3d low(place(random) * size * 10, place(random) * size * 10, 0);
        const AcGePoint3d high =
            low + AcGeVector3d(1.1 + place(random), 1.1 + place(random), 0) * size;
        AcGePoint3dArray corners;
        corners.append(low);
        corners.append(AcGePoint3d(high.x, low.y, 0));
        corners.append(high);
        corners.append(AcGePoint3d(low.x, high.y, 0));
        corners.append(low);
        const AcDb2dPolyline rectangle(AcDb::k2dSimplePoly, corners, 0.0, Adesk::kTrue);
        AcDbMPolygon area;
        areaWithin(&rectangle, area);
        for (int i = 0; i < 12; ++i)
        {
            const AcGePoint3d point = pointNear(corners[i % 4], corners[i % 4 + 1], random);
            const int decision = spanned(corners, point, i % 2);
            decided += decision != 0;
            ASSERT_TRUE(decision == 0 || decision == pointInCurve(point, rectangle, area))
                << quad << ", point " << i;
        }
    }
    EXPECT_GT(decided, 2500) << "it hardly ever decides";
}
}  // namespace
