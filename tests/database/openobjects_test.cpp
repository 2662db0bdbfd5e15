#include <gtest/gtest.h>

#include "dbobjptr.h"
#include "host/database/objectstate.h"
#include "host/database/openobjects.h"
#include "tests/support/emptydrawing.h"

namespace
{
TEST(OpenObjects, theLastOneOpenedIsToldWhateverIsClosedBetween)
{
    AcDbLine first;
    AcDbLine second;
    AcDbLine third;
    host::OpenObjects open;
    for (AcDbLine* line : {&first, &second, &third})
    {
        open.add(*line);
    }
    open.remove(second);
    EXPECT_EQ(&open.last(), &third);
    open.remove(third);
    EXPECT_EQ(&open.last(), &first);
    open.remove(first);
    EXPECT_TRUE(open.empty());
}

TEST(OpenObjects, anObjectWithTwoReadersIsOpenUntilBothHaveClosedIt)
{
    EmptyDrawing drawing;
    const host::OpenObjects& open = drawing.core().open();
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    AcDbEntity* once = nullptr;
    AcDbEntity* again = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(once, id, AcDb::kForRead), Acad::eOk);
    ASSERT_EQ(acdbOpenAcDbEntity(again, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(&open.last(), once);
    once->close();
    EXPECT_FALSE(open.empty());
    again->close();
    EXPECT_TRUE(open.empty());
}

TEST(OpenObjects, anOpeningThatIsRefusedLeavesNothingOpen)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForWrite);
        layer->setIsLocked(true);
    }
    AcDbEntity* line = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(line, id, AcDb::kForWrite), Acad::eOnLockedLayer);
    EXPECT_EQ(acdbOpenAcDbEntity(line, id, AcDb::kForNotify), Acad::eNotImplementedYet);
    EXPECT_TRUE(drawing.core().open().empty());
    EXPECT_TRUE(id.stub()->packed());
}

TEST(ObjectState, whoMayOpenFollowsFromWhoHasItOpen)
{
    using host::ObjectState;
    struct Row
    {
        int readers;
        AcDb::OpenMode mode;
        Acad::ErrorStatus status;
    };
    const Row rows[] = {
        {0, AcDb::kForRead, Acad::eOk},
        {0, AcDb::kForWrite, Acad::eOk},
        {1, AcDb::kForRead, Acad::eOk},
        {1, AcDb::kForWrite, Acad::eWasOpenForRead},
        {255, AcDb::kForRead, Acad::eOk},
        {256, AcDb::kForRead, Acad::eAtMaxReaders},
        {0, AcDb::kForNotify, Acad::eNotImplementedYet},
    };
    for (const Row& row : rows)
    {
        AcDbLine line;
        EXPECT_EQ(ObjectState::mayOpen(line, row.mode),
                  row.mode == AcDb::kForNotify ? Acad::eNotImplementedYet : Acad::eWasOpenForWrite);
        ObjectState::joinClosed(line, nullptr, nullptr);
        for (int i = 0; i < row.readers; ++i)
        {
            EXPECT_EQ(ObjectState::open(line, AcDb::kForRead), i == 0);
        }
        EXPECT_EQ(ObjectState::mayOpen(line, row.mode), row.status) << row.readers;
    }
}
}  // namespace
