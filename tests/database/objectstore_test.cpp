#include <gtest/gtest.h>

#include <set>

#include "dbobjptr.h"
#include "host/database/packing.h"
#include "host/database/retiredlines.h"
#include "tests/support/emptydrawing.h"

namespace
{
TEST(ObjectStore, closedLinesOfOneKindShareTheirStyle)
{
    EmptyDrawing drawing;
    const AcDbObjectId first = drawing.addLine(0, 0, 1, 1);
    const AcDbObjectId second = drawing.addLine(5, 5, 6, 6);
    auto* red = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0));
    red->setColorIndex(1);
    const AcDbObjectId third = drawing.add(red);
    EXPECT_EQ(first.stub()->style, second.stub()->style);
    EXPECT_NE(first.stub()->style, third.stub()->style);
    EXPECT_EQ(drawing.core().objects().style(third.stub()->style).color, 1);
}

TEST(ObjectStore, aStubTellsOfItsObjectAlikePackedOrNot)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    AcDbStub* const stub = id.stub();
    ASSERT_TRUE(stub->packed());
    const AcDbStub* const layer = host::layerOf(stub);
    const AcDbStub* const owner = host::ownerOf(stub);
    EXPECT_EQ(layer, drawing->clayer().stub());
    EXPECT_EQ(owner, drawing.core().roots()[host::Root::modelSpace]);
    EXPECT_EQ(host::typeOf(stub), AcDbLine::desc());
    const std::string told = host::describe(*stub);

    AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
    ASSERT_FALSE(stub->packed());
    EXPECT_EQ(host::layerOf(stub), layer);
    EXPECT_EQ(host::ownerOf(stub), owner);
    EXPECT_EQ(host::typeOf(stub), AcDbLine::desc());
    EXPECT_EQ(host::describe(*stub), told);
    EXPECT_EQ(host::resolve(stub), line.object());
}

TEST(ObjectStore, stubsStayWhereTheyAreAndInOrder)
{
    EmptyDrawing drawing;
    const host::ObjectStore& objects = drawing.core().objects();
    std::vector<AcDbStub*> made;
    for (AcDbStub& stub : objects)
    {
        made.push_back(&stub);
    }
    ASSERT_EQ(objects.size(), made.size());
    for (int i = 0; i < 60000; ++i)  // more than a block holds
    {
        made.push_back(drawing.core().objects().addForeign(std::uint64_t(1000000 + i)));
        ASSERT_EQ(made.back()->handle(), 1000000 + i);
        ASSERT_EQ(&host::coreOf(made.back()), &drawing.core());
    }
    ASSERT_EQ(objects.size(), made.size());
    for (std::size_t first = 0; first <= made.size(); first += first < 52000 ? 5200 : 1)
    {
        auto expected = made.begin() + std::ptrdiff_t(first);
        std::size_t left = 3;  // and one long way, from the start
        for (AcDbStub& stub : objects.from(first))
        {
            ASSERT_EQ(&stub, *expected++) << first;
            if (first != 0 && --left == 0)
            {
                break;
            }
        }
        ASSERT_TRUE(left == 0 || expected == made.end()) << first;
    }
}

TEST(ObjectStore, anObjectOfTheFileThatIsOnlyReferredToHasNoType)
{
    EmptyDrawing drawing;
    AcDbStub* const stub = drawing.core().objects().addForeign(0x77);
    EXPECT_EQ(host::typeOf(stub), nullptr);
    EXPECT_EQ(host::ownerOf(stub), nullptr);
    EXPECT_EQ(host::reactorsOf(stub), 0u);
    AcDbObject* object = nullptr;
    EXPECT_EQ(acdbOpenAcDbObject(object, AcDbObjectId(stub), AcDb::kForRead),
              Acad::eNotImplementedYet);
}

TEST(ObjectStore, aReactorJoinsAPackedLineAndAnOpenOneAlike)
{
    EmptyDrawing drawing;
    host::ObjectStore& objects = drawing.core().objects();
    const AcDbObjectId packed = drawing.addLine(0, 0, 1, 1);
    const AcDbObjectId opened = drawing.addLine(0, 0, 2, 2);
    AcDbStub* const reactor = objects.addForeign(0x77);
    objects.addReactor(packed.stub(), reactor);
    {
        AcDbObjectPointer<AcDbLine> line(opened, AcDb::kForRead);
        objects.addReactor(opened.stub(), reactor);
    }
    EXPECT_EQ(packed.stub()->style, opened.stub()->style);
    for (const AcDbObjectId& id : {packed, opened})
    {
        const std::uint32_t list = host::reactorsOf(id.stub());
        EXPECT_TRUE(objects.hasReactor(list, reactor));
        EXPECT_EQ(objects.reactors(list), std::vector<AcDbStub*>{reactor});
    }
    EXPECT_FALSE(objects.hasReactor(0, reactor));
}

TEST(RetiredLines, aClosedLineLivesUntilSevenMoreAreClosed)
{
    host::RetiredLines retired;
    std::vector<AcDbLine*> lines;
    for (int i = 0; i < 8; ++i)
    {
        lines.push_back(new AcDbLine(AcGePoint3d(), AcGePoint3d(i, 0, 0)));
        EXPECT_EQ(retired.take(), nullptr);
        retired.add(lines.back());
    }
    EXPECT_EQ(lines.front()->endPoint().x, 0);
    AcDbLine* const oldest = retired.take();
    EXPECT_EQ(oldest, lines.front());
    EXPECT_EQ(retired.take(), nullptr);
    retired.add(oldest);
    EXPECT_EQ(retired.take(), lines[1]);
    delete lines[1];
}
}  // namespace
