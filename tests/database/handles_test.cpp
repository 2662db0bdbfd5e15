#include <gtest/gtest.h>

#include "host/database/handles.h"

namespace
{
TEST(Handles, everyOneIsGivenOnceAndNoneIsZero)
{
    host::Handles handles;
    EXPECT_EQ(handles.take(), 1u);
    EXPECT_EQ(handles.take(), 2u);
    EXPECT_EQ(handles.next(), 3u);
}

TEST(Handles, theNextOneOnlyGoesUp)
{
    struct Row
    {
        std::uint64_t start;
        std::uint64_t next;
    };
    const Row rows[] = {
        {0, 5},  // a file without a seed
        {4, 5}, {5, 5}, {6, 6}, {0xFFFF, 0xFFFF},
    };
    for (const Row& row : rows)
    {
        host::Handles handles;
        handles.startAt(5);
        handles.startAt(row.start);
        EXPECT_EQ(handles.next(), row.next) << row.start;
        EXPECT_EQ(handles.take(), row.next) << row.start;
    }
}
}  // namespace
