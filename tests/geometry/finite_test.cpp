#include "host/geometry/finite.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using Limits = std::numeric_limits<double>;

TEST(Finite, everyCoordinateCountsAndOnlyInfinityAndNaNDoNotPass)
{
    struct Row
    {
        double value;
        bool finite;
    };
    const Row rows[] = {
        {0.0, true},
        {-0.0, true},
        {1e-310, true},
        {Limits::max(), true},
        {Limits::lowest(), true},
        {Limits::infinity(), false},
        {-Limits::infinity(), false},
        {Limits::quiet_NaN(), false},
    };
    for (const Row& row : rows)
    {
        for (unsigned place = 0; place < 3; ++place)
        {
            AcGePoint3d point(Limits::max(), -1, Limits::lowest());
            point[place] = row.value;
            EXPECT_EQ(host::isFinite(point), row.finite) << row.value << " at " << place;
            EXPECT_EQ(host::isFinite(point.asVector()), row.finite) << row.value << " at " << place;
        }
    }
}
}  // namespace
