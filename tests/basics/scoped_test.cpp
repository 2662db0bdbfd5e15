#include "host/basics/scoped.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
TEST(Scoped, givesTheFormerValueBackOnEveryWayOut)
{
    int number = 1;
    {
        const host::Scoped<int> outer(number, 2);
        EXPECT_EQ(number, 2);
        try
        {
            const host::Scoped<int> inner(number, 3);
            EXPECT_EQ(number, 3);
            throw std::runtime_error("out");
        }
        catch (const std::runtime_error&)
        {
            EXPECT_EQ(number, 2);
        }
    }
    EXPECT_EQ(number, 1);
}
}  // namespace
