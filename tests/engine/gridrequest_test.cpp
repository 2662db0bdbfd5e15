#include "engine/gridrequest.h"

#include <gtest/gtest.h>

#include "host/database/stub.h"

namespace
{
TEST(GridDrawing, aHundredThousandEntitiesAreMovedSeldom)
{
    AcDbStub stub = {};
    GridDrawing drawing;
    int moves = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const int room = drawing.made.physicalLength();
        addMade(drawing, AcDbObjectId(&stub));
        moves += drawing.made.physicalLength() != room;
    }
    EXPECT_EQ(drawing.made.length(), 100000);
    EXPECT_LT(moves, 20);
}
}  // namespace
