// Lines that a step of undo has made and erased again.
#include <gtest/gtest.h>

#include "dbobjptr.h"
#include "host/database/packing.h"
#include "host/database/undo.h"
#include "tests/support/emptydrawing.h"

namespace
{
using host::StubArena;

class GoneLines : public testing::Test
{
protected:
    static constexpr std::size_t blocks = 3;
    static constexpr std::size_t lines = blocks * 52427;

    std::vector<AcDbStub*> addLines()
    {
        std::vector<AcDbStub*> made;
        for (std::size_t i = 0; i < lines; ++i)
        {
            made.push_back(drawing.addLine(double(i), 0, 1, 1).stub());
        }
        return made;
    }
    // A line at two elevations begins a block, and is erased.
    void addBlock()
    {
        erase(drawing.add(new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(0, 0, 1))).stub());
    }
    static void erase(AcDbStub* stub, bool erasing = true)
    {
        AcDbObjectPointer<AcDbLine> line(AcDbObjectId(stub), AcDb::kForWrite, true);
        ASSERT_EQ(line->erase(erasing), Acad::eOk);
    }
    static void eraseAll(const std::vector<AcDbStub*>& stubs)
    {
        for (AcDbStub* stub : stubs)
        {
            erase(stub);
        }
    }
    static std::size_t goneOf(const std::vector<AcDbStub*>& stubs)
    {
        return std::size_t(std::ranges::count_if(stubs, StubArena::isGone));
    }
    std::size_t living()
    {
        std::size_t count = 0;
        for (const AcDbStub& stub : drawing.core().objects())
        {
            count += !stub.erased() && host::typeOf(&stub) == AcDbLine::desc();
        }
        return count;
    }

    EmptyDrawing drawing;
};

TEST_F(GoneLines, giveTheMemoryOfWholeBlocksBackAndStayErased)
{
    const host::UndoMark mark = host::undoMark(drawing.database());
    const std::size_t size = drawing.core().objects().size();
    const std::vector<AcDbStub*> made = addLines();
    eraseAll(made);
    EXPECT_EQ(goneOf(made), 0u);
    addBlock();
    EXPECT_EQ(goneOf(made), (blocks - 1) * 52427);  // neither the first nor the last block
    EXPECT_EQ(drawing.core().objects().size(), size + lines + 1);
    EXPECT_EQ(living(), 0u);
    for (std::size_t i = 0; i < made.size(); i += 997)
    {
        const AcDbObjectId id(made[i]);
        AcDbObject* object = nullptr;
        ASSERT_TRUE(id.isErased());
        ASSERT_EQ(id.database(), &drawing.database());
        ASSERT_EQ(acdbOpenAcDbObject(object, id, AcDb::kForRead), Acad::eWasErased);
        const Acad::ErrorStatus status = acdbOpenAcDbObject(object, id, AcDb::kForRead, true);
        ASSERT_EQ(status, StubArena::isGone(made[i]) ? Acad::ePermanentlyErased : Acad::eOk);
        if (status == Acad::eOk)
        {
            object->close();
        }
    }
    const host::UndoneChanges undone = host::undoTo(drawing.database(), mark);
    EXPECT_EQ(living(), 0u);
    host::redo(drawing.database(), undone);
    EXPECT_EQ(living(), 0u);
    EXPECT_EQ(drawing.addLine(0, 0, 1, 1).stub()->erased(), false);
    EXPECT_EQ(living(), 1u);
}

TEST_F(GoneLines, goAlsoWhenTheNextStepBeginsAndBesideErasedPolylines)
{
    host::undoMark(drawing.database());
    std::vector<AcDbStub*> made = addLines();
    AcGePoint3dArray corners;
    corners.append(AcGePoint3d(0, 0, 0));
    corners.append(AcGePoint3d(1, 1, 0));
    const AcDbObjectId id = drawing.add(new AcDb2dPolyline(AcDb::k2dSimplePoly, corners));
    const std::vector<AcDbStub*> more = addLines();
    eraseAll(made);
    eraseAll(more);
    AcDbEntity* polyline = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(polyline, id, AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(polyline->erase(), Acad::eOk);
    polyline->close();
    host::undoMark(drawing.database());
    EXPECT_TRUE(StubArena::isGone(id.stub()));
    EXPECT_EQ(acdbOpenAcDbEntity(polyline, id, AcDb::kForRead, true), Acad::ePermanentlyErased);
    EXPECT_TRUE(StubArena::isGone(made.back()));
    EXPECT_TRUE(StubArena::isGone(more.front()));
}

TEST_F(GoneLines, areNotThoseOfAnEarlierStep)
{
    const std::vector<AcDbStub*> made = addLines();
    const host::UndoMark mark = host::undoMark(drawing.database());
    eraseAll(made);
    addBlock();
    EXPECT_EQ(goneOf(made), 0u);
    const host::UndoneChanges undone = host::undoTo(drawing.database(), mark);
    EXPECT_EQ(living(), lines);
    host::redo(drawing.database(), undone);
    EXPECT_EQ(living(), 0u);
}

TEST_F(GoneLines, leaveTheOtherLinesOfTheStepToUndoAndRedo)
{
    const host::UndoMark mark = host::undoMark(drawing.database());
    const std::vector<AcDbStub*> first = addLines();
    eraseAll(first);
    const std::vector<AcDbStub*> second = addLines();
    EXPECT_EQ(living(), lines);
    const host::UndoneChanges undone = host::undoTo(drawing.database(), mark);
    EXPECT_EQ(living(), 0u);
    host::redo(drawing.database(), undone);
    EXPECT_EQ(living(), lines);
    EXPECT_TRUE(std::ranges::none_of(second, [](AcDbStub* stub) { return stub->erased(); }));
    EXPECT_TRUE(std::ranges::all_of(first, [](AcDbStub* stub) { return stub->erased(); }));
}

TEST_F(GoneLines, areNotThoseBesideALineThatStandsOrIsOpen)
{
    const std::vector<AcDbStub*> made = addLines();
    const std::size_t kept = 52427 + 10;
    const std::size_t open = 2 * 52427 + 10;
    AcDbObjectPointer<AcDbLine> line(AcDbObjectId(made[open]), AcDb::kForWrite);
    ASSERT_EQ(line->erase(), Acad::eOk);
    for (std::size_t i = 0; i < made.size(); ++i)
    {
        if (i != open)
        {
            erase(made[i]);
            if (i == kept)
            {
                erase(made[i], false);
            }
        }
    }
    addBlock();
    EXPECT_EQ(goneOf(made), 0u);
    EXPECT_EQ(living(), 1u);
    EXPECT_EQ(line->startPoint(), AcGePoint3d(double(open), 0, 0));
}
}  // namespace
