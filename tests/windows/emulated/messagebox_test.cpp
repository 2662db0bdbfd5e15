#include <gtest/gtest.h>

#include "winuser.h"

namespace
{
// Windows itself shows it to whoever sits there.
TEST(MessageBoxes, nobodyAnswersWithoutACommandLine)
{
    EXPECT_EQ(MessageBoxW(nullptr, L"T", L"C", MB_YESNO), 0);
}
}  // namespace
