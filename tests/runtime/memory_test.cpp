#include <gtest/gtest.h>

#include "acutmem.h"

namespace
{
TEST(Texts, copyIsTheCallersAndFreeingNullsIt)
{
    ACHAR* copy = nullptr;
    ASSERT_EQ(acutNewString(L"Сетка", copy), Acad::eOk);
    EXPECT_STREQ(copy, L"Сетка");
    acutDelString(copy);
    EXPECT_EQ(copy, nullptr);
    acutDelBuffer(copy);
}

TEST(Texts, copyOfNothingIsRefused)
{
    ACHAR before[] = L"x";
    ACHAR* copy = before;
    EXPECT_EQ(acutNewString(nullptr, copy), Acad::eInvalidInput);
    EXPECT_EQ(copy, nullptr);
}
}  // namespace
