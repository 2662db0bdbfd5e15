#include "engine/gridrequest.h"

#include <gtest/gtest.h>

#include "host/database/stub.h"

namespace
{
TEST(GridRequest, aHundredThousandEntitiesAreMovedSeldom)
{
    AcDbStub stub = {};
    AcDbObjectIdArray made;
    int moves = 0;
    for (int i = 0; i < 100000; ++i)
    {
        const int room = made.physicalLength();
        addMade(made, AcDbObjectId(&stub));
        moves += made.physicalLength() != room;
    }
    EXPECT_EQ(made.length(), 100000);
    EXPECT_LT(moves, 20);
}
}  // namespace
