#include "command/corners.h"

#include <gtest/gtest.h>

#include "tests/command/scriptededitor.h"

namespace
{
TEST(Corners, makeARectangleOfWhateverTurn)
{
    struct Row
    {
        AcGePoint3d first, other;  // [ucs]
    };
    const Row rows[] = {
        {AcGePoint3d(10, 20, 0), AcGePoint3d(310, 220, 0)},
        {AcGePoint3d(310, 220, 0), AcGePoint3d(10, 20, 0)},
        {AcGePoint3d(10, 220, 0), AcGePoint3d(310, 20, 7)},
    };
    for (const Row& row : rows)
    {
        ScriptedEditor editor;
        editor.ucs = AcGeMatrix3d::translation(AcGeVector3d(1000, 2000, 3000));
        const PickedRectangle rectangle = drawRectangle(row.first, row.other);
        EXPECT_EQ(rectangle.width, 300);
        EXPECT_EQ(rectangle.height, 200);
        EXPECT_FALSE(rectangle.boundaryId.isNull());
        const AcGeVector3d origin(1000, 2000, 3000);
        EXPECT_TRUE(rectangle.firstCorner.isEqualTo(row.first + origin));
        EXPECT_TRUE(rectangle.otherCorner.isEqualTo(row.other + origin));
        EXPECT_EQ(editor.contents(), (Contents{.outlines = 1}));
    }
}

TEST(Corners, makeARectangleWhoseSidesRunAlongTheAxesOfTheUcs)
{
    ScriptedEditor editor;
    editor.ucs = AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis);
    const PickedRectangle rectangle =
        drawRectangle(AcGePoint3d(310, 20, 0), AcGePoint3d(10, 220, 0));
    EXPECT_EQ(rectangle.width, 300);
    EXPECT_EQ(rectangle.height, 200);
}
}  // namespace
