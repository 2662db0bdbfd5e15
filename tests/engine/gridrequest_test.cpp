#include "engine/gridrequest.h"

#include <gtest/gtest.h>

#include "tests/support/emptydrawing.h"

namespace
{
TEST(GridRequest, aHundredThousandEntitiesAreMovedSeldom)
{
    EmptyDrawing drawing;
    const AcDbObjectId line = drawing.addLine(0, 0, 1, 1);
    AcDbObjectIdArray made;
    int moves = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const int room = made.physicalLength();
        addMade(made, line);
        moves += made.physicalLength() != room;
    }
    EXPECT_EQ(made.length(), 100000);
    EXPECT_LT(moves, 20);
}

TEST(GridRequest, cornersAreSortedByXAndYAndKeepTheirElevations)
{
    AcGePoint3d low(5, 1, 9);
    AcGePoint3d high(2, 3, 4);
    sortCorners(low, high);
    EXPECT_EQ(low, AcGePoint3d(2, 1, 9));
    EXPECT_EQ(high, AcGePoint3d(5, 3, 4));
}
}  // namespace
