// What the stub of a closed line holds, and what stays on the heap.
#include <gtest/gtest.h>

#include <cmath>

#include "dbgroup.h"
#include "dbobjptr.h"
#include "host/database/groupmembers.h"
#include "host/database/packing.h"
#include "tests/support/emptydrawing.h"

namespace
{
using host::StubArena;

class PackedLines : public testing::Test
{
protected:
    AcDbStub* addLine(double startZ, double endZ, int color = 256)
    {
        auto* line = new AcDbLine(AcGePoint3d(1, 2, startZ), AcGePoint3d(3, 4, endZ));
        line->setColorIndex(Adesk::UInt16(color));
        return drawing.add(line).stub();
    }
    host::ObjectStore& objects() { return drawing.core().objects(); }

    static std::ptrdiff_t bytesOf(AcDbStub* stub)
    {
        return reinterpret_cast<std::byte*>(StubArena::behind(stub)) -
               reinterpret_cast<std::byte*>(stub);
    }
    static host::LineEnds endsOf(AcDbStub* stub)
    {
        AcDbObjectPointer<AcDbLine> line(AcDbObjectId(stub), AcDb::kForRead);
        return {line->startPoint(), line->endPoint()};
    }
    static void expectEnds(AcDbStub* stub, double startZ, double endZ)
    {
        const host::LineEnds ends = endsOf(stub);
        EXPECT_EQ(ends.start, AcGePoint3d(1, 2, startZ));
        EXPECT_EQ(ends.end, AcGePoint3d(3, 4, endZ));
        EXPECT_EQ(std::signbit(ends.start.z), std::signbit(startZ));
        EXPECT_EQ(std::signbit(ends.end.z), std::signbit(endZ));
    }
    static void setStartZ(AcDbStub* stub, double z)
    {
        AcDbObjectPointer<AcDbLine> line(AcDbObjectId(stub), AcDb::kForWrite);
        line->setStartPoint(AcGePoint3d(1, 2, z));
    }

    EmptyDrawing drawing;
};

TEST_F(PackedLines, takeFewBytesAsLongAsTheyLieAtOneElevation)
{
    for (int i = 0; i < 3; ++i)
    {
        AcDbStub* const stub = addLine(7.5, 7.5);
        EXPECT_TRUE(stub->packed());
        EXPECT_EQ(bytesOf(stub), 40);
        expectEnds(stub, 7.5, 7.5);
    }
}

TEST_F(PackedLines, keepTheElevationsThatTheyHaveWhateverTheLinesBeforeHave)
{
    const double elevations[][2] = {{0, 0},   {0, 0},   {0, 1},     {1, 1},  {0, 0},
                                    {-0., 0}, {0, -0.}, {-0., -0.}, {5, -5}, {1e300, 1e-300}};
    std::vector<AcDbStub*> stubs;
    for (const auto& [start, end] : elevations)
    {
        stubs.push_back(addLine(start, end));
        EXPECT_TRUE(stubs.back()->packed());
    }
    EXPECT_EQ(bytesOf(stubs[1]), 40);
    EXPECT_EQ(bytesOf(stubs[2]), 56);
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        expectEnds(stubs[i], elevations[i][0], elevations[i][1]);
    }
}

TEST_F(PackedLines, aNegativeZeroIsAnElevationOfItsOwn)
{
    AcDbStub* const first = addLine(0, 0);
    AcDbStub* const second = addLine(-0.0, -0.0);
    expectEnds(first, 0, 0);
    expectEnds(second, -0.0, -0.0);
}

TEST_F(PackedLines, takeFewBytesAgainAfterAWholeBlockAtOneElevation)
{
    addLine(0, 0);
    AcDbStub* last = addLine(0, 1);
    std::size_t wide = 0;
    while (bytesOf(last) == 56 && wide < 80000)
    {
        ++wide;
        last = addLine(3, 3);
    }
    // The block with the sloping line does not count, the next one does.
    EXPECT_GT(wide, 2u * 37000);
    EXPECT_LT(wide, 2u * 38000);
    EXPECT_EQ(bytesOf(last), 40);
    expectEnds(last, 3, 3);
}

TEST_F(PackedLines, aLineLiftedOffItsElevationStaysOnTheHeap)
{
    AcDbStub* const stub = addLine(0, 0);
    AcDbStub* const neighbour = addLine(0, 0);
    setStartZ(stub, 9);
    EXPECT_FALSE(stub->packed());
    expectEnds(stub, 9, 0);
    EXPECT_FALSE(stub->packed());
    setStartZ(stub, 0);  // it would fit again
    EXPECT_FALSE(stub->packed());
    expectEnds(stub, 0, 0);
    expectEnds(neighbour, 0, 0);
    EXPECT_TRUE(neighbour->packed());
    EXPECT_EQ(host::layerOf(stub), host::layerOf(neighbour));
    EXPECT_EQ(host::ownerOf(stub), host::ownerOf(neighbour));
}

TEST_F(PackedLines, inABlockWithRoomForElevationsALineCanBeLifted)
{
    AcDbStub* const stub = addLine(1, 2);
    setStartZ(stub, 9);
    EXPECT_TRUE(stub->packed());
    expectEnds(stub, 9, 2);
}

TEST_F(PackedLines, aLiftedLineThatIsOpenWhenTheDrawingEndsIsDeletedOnce)
{
    const AcDbObjectId id(addLine(0, 0));
    setStartZ(id.stub(), 9);
    AcDbEntity* left = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(left, id, AcDb::kForRead), Acad::eOk);
}

TEST_F(PackedLines, aLineWithAStyleTooManyStaysOnTheHeap)
{
    AcDbStub* const first = addLine(0, 0, 1);
    objects().limitStyles(first->style + 1);
    AcDbStub* const second = addLine(0, 0, 2);
    AcDbStub* const third = addLine(0, 0, 1);
    EXPECT_TRUE(first->packed());
    EXPECT_FALSE(second->packed());
    EXPECT_TRUE(third->packed());
    AcDbObjectPointer<AcDbLine> line(AcDbObjectId(second), AcDb::kForRead);
    EXPECT_EQ(line->colorIndex(), 2);
    EXPECT_EQ(line->startPoint(), AcGePoint3d(1, 2, 0));
}

TEST_F(PackedLines, aReactorThatMakesAStyleTooManyLiftsTheLine)
{
    AcDbStub* const stub = addLine(0, 0, 1);
    AcDbStub* const reactor = objects().addForeign(0x77);
    objects().limitStyles(1);
    objects().addReactor(stub, reactor);
    EXPECT_FALSE(stub->packed());
    EXPECT_TRUE(objects().hasReactor(host::reactorsOf(stub), reactor));
    expectEnds(stub, 0, 0);
    EXPECT_TRUE(objects().hasReactor(host::reactorsOf(stub), reactor));
}

TEST_F(PackedLines, handlesOfAnyLengthAreKept)
{
    const std::uint64_t rows[] = {1, 0xFFFFFFFF, 0x100000000, 0x123456789ABCDEF0, 2, UINT64_MAX};
    std::vector<AcDbStub*> stubs;
    for (const std::uint64_t handle : rows)
    {
        stubs.push_back(objects().addForeign(handle));
        EXPECT_EQ(stubs.back()->handle(), handle);
    }
    for (std::size_t i = 0; i < stubs.size(); ++i)
    {
        EXPECT_EQ(stubs[i]->handle(), rows[i]);
        for (const std::uint64_t handle : rows)
        {
            objects().setHandle(stubs[i], handle);
            EXPECT_EQ(stubs[i]->handle(), handle);
        }
    }
}

TEST_F(PackedLines, countOnBeyond32BitsOfHandle)
{
    drawing.core().handles().startAt(0xFFFFFFFE);
    std::uint64_t next = 0xFFFFFFFE;
    for (int i = 0; i < 60000; ++i)  // into the next block
    {
        AcDbStub* const stub = addLine(0, 0);
        ASSERT_EQ(stub->handle(), next++);
        ASSERT_TRUE(stub->packed());
    }
}

TEST_F(PackedLines, aGroupTellsItsMembersInTheOrderInWhichTheyJoined)
{
    std::vector<AcDbStub*> lines;
    for (int i = 0; i < 60000; ++i)  // into the next block
    {
        lines.push_back(addLine(0, 0));
    }
    std::vector<AcDbStub*> joining(lines.begin() + 10, lines.end());
    joining.insert(joining.end(), {lines[3], lines[4], lines[6], lines[5], lines[0]});

    host::GroupMembers members;
    AcDbStub* const group = objects().addForeign(0x77);
    for (AcDbStub* line : joining)
    {
        ASSERT_TRUE(members.add(line, group));
    }
    EXPECT_FALSE(members.add(lines[4], group));
    auto expected = joining.begin();
    members.forEach([&expected](const AcDbStub& member) { ASSERT_EQ(&member, *expected++); });
    EXPECT_EQ(expected, joining.end());
}
}  // namespace
