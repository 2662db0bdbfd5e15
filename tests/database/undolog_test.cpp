#include <gtest/gtest.h>

#include "dbobjptr.h"
#include "host/database/undolog.h"
#include "tests/support/emptydrawing.h"

namespace
{
class UndoLogs : public testing::Test
{
protected:
    void switchOff(bool off)
    {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForWrite);
        layer->setIsOff(off);
    }
    bool isOff()
    {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForRead);
        return layer->isOff();
    }

    // Returns a line that an earlier step has made.
    AcDbStub* addOldLine()
    {
        AcDbStub* const line = drawing.addLine(0, 0, 1, 1).stub();
        drawing.core().objects().beginStep();
        return line;
    }

    EmptyDrawing drawing;
    host::UndoLog& log = drawing.core().undoLog();
};

TEST_F(UndoLogs, whatIsErasedIsNotedAndWhatComesBackIsNot)
{
    AcDbStub* const line = addOldLine();
    log.erase(line, true);
    EXPECT_TRUE(line->erased());
    log.erase(line, false);
    EXPECT_FALSE(line->erased());
    EXPECT_EQ(log.erased(), std::vector<AcDbStub*>{line});
}

TEST_F(UndoLogs, whatTheStepMadeItselfNeedsNoNote)
{
    AcDbStub* const before = addOldLine();
    AcDbStub* const after = drawing.addLine(0, 0, 2, 2).stub();
    log.erase(after, true);
    log.erase(before, true);
    EXPECT_TRUE(after->erased());
    EXPECT_EQ(log.erased(), std::vector<AcDbStub*>{before});
}

TEST_F(UndoLogs, whatWasErasedBeforeTheMarkStaysErased)
{
    AcDbStub* const before = addOldLine();
    AcDbStub* const after = addOldLine();
    log.erase(before, true);
    const host::UndoLog::Mark mark = log.mark();
    log.erase(after, true);
    const host::UndoLog::Undone undone = log.undoTo(mark);
    EXPECT_TRUE(before->erased());
    EXPECT_FALSE(after->erased());
    EXPECT_EQ(log.erased(), std::vector<AcDbStub*>{before});
    log.redo(undone);
    EXPECT_TRUE(after->erased());
    EXPECT_EQ(log.erased(), (std::vector<AcDbStub*>{before, after}));
}

TEST_F(UndoLogs, aLayerChangedManyTimesGoesBackToItsFirstState)
{
    const host::UndoLog::Mark mark = log.mark();
    for (const bool off : {true, false, true})
    {
        switchOff(off);
    }
    EXPECT_EQ(log.mark().layers, mark.layers + 3);
    const host::UndoLog::Undone undone = log.undoTo(mark);
    EXPECT_FALSE(isOff());
    EXPECT_EQ(log.mark().layers, mark.layers);
    log.redo(undone);
    EXPECT_TRUE(isOff());
    EXPECT_EQ(log.mark().layers, mark.layers + 3);
}

TEST_F(UndoLogs, anErasedPolylineTakesItsVerticesAlongAndBack)
{
    AcGePoint3dArray points;
    for (int i = 0; i < 3; ++i)
    {
        points.append(AcGePoint3d(i, i * i, 0));
    }
    const AcDbObjectId id = drawing.add(new AcDb2dPolyline(AcDb::k2dSimplePoly, points));
    drawing.core().objects().beginStep();
    const host::UndoLog::Mark mark = log.mark();
    {
        AcDbObjectPointer<AcDb2dPolyline> polyline(id, AcDb::kForWrite);
        polyline->erase();
    }
    EXPECT_EQ(log.erased().size(), mark.erased + 5);  // itself, three vertices and the end
    for (const AcDbStub* stub : log.erased())
    {
        EXPECT_TRUE(stub->erased());
    }
    for (const AcDbStub* stub : log.undoTo(mark).erased)
    {
        EXPECT_FALSE(stub->erased());
    }
}

TEST_F(UndoLogs, anUndoWithoutChangesIsEmpty)
{
    const host::UndoLog::Undone undone = log.undoTo(log.mark());
    EXPECT_TRUE(undone.erased.empty());
    EXPECT_TRUE(undone.before.empty());
    EXPECT_TRUE(undone.after.empty());
}
}  // namespace
