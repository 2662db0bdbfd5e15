#include "host/pictures/canvas.h"

#include <gtest/gtest.h>

#include "tests/plot/picture.h"

// A wedge from the text's end to the circle would cross the middle.
TEST(Canvas, aCircleAfterATextIsACircle)
{
    for (const bool filled : {false, true})
    {
        host::Canvas canvas(100, 20, 1);
        canvas.fill({0, 0, 100, 20}, host::white);
        canvas.text({0, 0, 20, 20}, 2, 10, L"H", host::black);
        canvas.circle(90, 10, 6, host::black, filled);
        const tests::Picture picture(*canvas.png());
        for (int x = 25; x < 80; ++x)
        {
            for (int y = 0; y < 20; ++y)
            {
                ASSERT_EQ(picture.at((x + 0.5) / 100, (y + 0.5) / 20), 0xFFFFFFu) << x << "," << y;
            }
        }
    }
}
