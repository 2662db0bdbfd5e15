// Screens of many dots per inch.
#include "host/dialogs/windows/sizeonscreen.h"

#include <gtest/gtest.h>

namespace
{
struct Row
{
    int dotsPerInch;
    SIZE shown;
};

TEST(ScreensOfManyDots, showThePictureOfAButtonAsLargeAsTheDialog)
{
    const Row rows[] = {
        {96, {16, 15}},
        {120, {20, 19}},
        {144, {24, 23}},
        {192, {32, 30}},
    };
    for (const Row& row : rows)
    {
        const SIZE shown = host::sizeOnScreen({16, 15}, row.dotsPerInch);
        EXPECT_EQ(shown.cx, row.shown.cx) << row.dotsPerInch;
        EXPECT_EQ(shown.cy, row.shown.cy) << row.dotsPerInch;
    }
}

// The test program has the manifest of arxhost.
TEST(ScreensOfManyDots, areKnownToTheProgram)
{
    EXPECT_TRUE(IsProcessDPIAware());
}
}  // namespace
