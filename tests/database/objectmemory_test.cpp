#include "host/database/objectmemory.h"

#include <gtest/gtest.h>

#include <set>

#include "dbents.h"
#include "tests/support/sanitized.h"

namespace
{
TEST(ObjectMemory, aNewLineTakesTheMemoryOfTheLineDeletedLast)
{
#ifdef WATCHED_FOR_ADDRESSES
    GTEST_SKIP() << "the sanitizer has to see the use of a deleted line";
#endif
    host::freeKeptMemory();
    auto* first = new AcDbLine();
    auto* second = new AcDbLine();
    const void* const memory = second;
    delete first;
    delete second;
    auto* text = new AcDbText();
    EXPECT_NE(static_cast<void*>(text), memory);
    auto* again = new AcDbLine();
    EXPECT_EQ(static_cast<void*>(again), memory);
    delete again;
    delete text;
    host::freeKeptMemory();
}

TEST(ObjectMemory, anyNumberOfLinesCanBeDeletedAtOnce)
{
    for (int round = 0; round < 2; ++round)
    {
        std::set<AcDbLine*> lines;
        for (int i = 0; i < 100; ++i)
        {
            EXPECT_TRUE(lines.insert(new AcDbLine()).second);
        }
        for (AcDbLine* line : lines)
        {
            delete line;
        }
    }
    delete static_cast<AcDbLine*>(nullptr);
    host::freeKeptMemory();
    host::freeKeptMemory();
}
}  // namespace
