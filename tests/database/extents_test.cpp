#include "host/database/extents.h"

#include <gtest/gtest.h>

#include <cmath>

#include "host/database/undo.h"
#include "tests/support/emptydrawing.h"

namespace
{
void expectBox(const host::WorldExtents& box, const AcGePoint3d& low, const AcGePoint3d& high)
{
    EXPECT_LT((box.low - low).length(), 1e-9) << box.low.x << "," << box.low.y << "," << box.low.z;
    EXPECT_LT((box.high - high).length(), 1e-9)
        << box.high.x << "," << box.high.y << "," << box.high.z;
}

TEST(Extents, ofNothingAreEmptyAsDrawingsStateThem)
{
    EmptyDrawing drawing;
    const host::WorldExtents none = host::modelExtents(drawing.core());
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.low.x, 1e20);
    EXPECT_EQ(none.high.z, -1e20);
}

TEST(Extents, coverWhatIsInModelSpaceNowAndNoMore)
{
    EmptyDrawing drawing;
    drawing.addLine(0, 0, 10, 5);
    expectBox(host::modelExtents(drawing.core()), {0, 0, 0}, {10, 5, 0});

    const host::UndoMark mark = host::undoMark(drawing.database());
    AcGePoint3dArray corners;
    corners.append(AcGePoint3d(-3, 1, 0));
    corners.append(AcGePoint3d(2, 40, 0));
    drawing.add(new AcDb2dPolyline(AcDb::k2dSimplePoly, corners, 7));
    expectBox(host::modelExtents(drawing.core()), {-3, 0, 0}, {10, 40, 7});

    host::undoTo(drawing.database(), mark);
    expectBox(host::modelExtents(drawing.core()), {0, 0, 0}, {10, 5, 0});
}

TEST(Extents, ofATextAreThoseOfItsEstimatedLetters)
{
    EmptyDrawing drawing;
    drawing.add(new AcDbText(AcGePoint3d(1, 2, 0), L"1234567", AcDbObjectId::kNull, 3, M_PI / 2));
    expectBox(host::modelExtents(drawing.core()), {-2, 2, 0}, {1, 20, 0});
}

TEST(Extents, ofAnOpenLineAreWhereItIsBeingMoved)
{
    EmptyDrawing drawing;
    AcDbLine* line = nullptr;
    ASSERT_EQ(acdbOpenObject(line, drawing.addLine(0, 0, 1, 1), AcDb::kForWrite), Acad::eOk);
    line->setEndPoint(AcGePoint3d(9, 9, 9));
    expectBox(host::modelExtents(drawing.core()), {0, 0, 0}, {9, 9, 9});
    line->close();
}

// Entities of a layout are not in model space.
TEST(Extents, leaveTheLayoutsOut)
{
    EmptyDrawing drawing;
    AcDbBlockTable* table = nullptr;
    AcDbBlockTableRecord* layout = nullptr;
    drawing->getBlockTable(table, AcDb::kForRead);
    ASSERT_EQ(table->getAt(ACDB_PAPER_SPACE, layout, AcDb::kForWrite), Acad::eOk);
    auto* line = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 1, 0));
    ASSERT_EQ(layout->appendAcDbEntity(line), Acad::eOk);
    line->close();
    layout->close();
    table->close();
    EXPECT_TRUE(host::modelExtents(drawing.core()).empty());
}
}  // namespace
