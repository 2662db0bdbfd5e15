#include "host/documents/locks.h"

#include <gtest/gtest.h>

namespace
{
TEST(Locks, theNewestCountsAndTheOneBeforeItCountsAgainWhenItGoes)
{
    host::Locks locks;
    EXPECT_EQ(locks.mode(), AcAp::kNotLocked);
    locks.push(AcAp::kRead);
    EXPECT_EQ(locks.modeBelow(), AcAp::kNotLocked);
    locks.push(AcAp::kWrite);
    EXPECT_EQ(locks.mode(), AcAp::kWrite);
    EXPECT_EQ(locks.modeBelow(), AcAp::kRead);
    locks.pop();
    EXPECT_EQ(locks.mode(), AcAp::kRead);
    EXPECT_EQ(locks.depth(), 1u);
}
}  // namespace
