#include "host/basics/result.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
host::Result<std::unique_ptr<int>> half(int number)
{
    if (number % 2 != 0)
    {
        return host::Failure{std::to_string(number) + ": expected an even number"};
    }
    return std::make_unique<int>(number / 2);
}

host::Result<> checkHalf(int number)
{
    const auto halved = half(number);
    return halved ? host::Result<>(host::Done{}) : halved.failure();
}

TEST(Results, holdAValueOrTheLineThatSaysWhyThereIsNone)
{
    const auto four = half(8);
    ASSERT_TRUE(four);
    EXPECT_EQ(**four, 4);
    const auto none = half(7);
    ASSERT_FALSE(none);
    EXPECT_EQ(none.failure().line, "7: expected an even number");
}

TEST(Results, giveTheirValueAway)
{
    const std::unique_ptr<int> four = std::move(*half(8));
    EXPECT_EQ(*four, 4);
}

TEST(Results, handAFailureOnToACallerOfAnotherKind)
{
    EXPECT_TRUE(checkHalf(8));
    EXPECT_EQ(checkHalf(7).failure().line, "7: expected an even number");
}

TEST(Results, ofTextsTellAFailureFromAnEmptyText)
{
    const host::Result<std::string> empty = std::string();
    const host::Result<std::string> failed = host::Failure{""};
    EXPECT_TRUE(empty);
    EXPECT_FALSE(failed);
}
}  // namespace
