#include <gtest/gtest.h>

#include "dbgroup.h"
#include "dbobjptr.h"
#include "host/database/nothingopen.h"
#include "tests/support/emptydrawing.h"

namespace
{
struct Step
{
    const char* what;  // r, w: open for read, write; u: upgrade; d: downgrade; c: close
    Acad::ErrorStatus last;
};

class Opener
{
public:
    explicit Opener(AcDbObjectId id) : m_id(id) {}

    Acad::ErrorStatus run(const char* steps)
    {
        Acad::ErrorStatus status = Acad::eOk;
        for (; *steps; ++steps)
        {
            status = step(*steps);
        }
        return status;
    }

private:
    Acad::ErrorStatus step(char what)
    {
        if (what == 'r' || what == 'w')
        {
            AcDbEntity* opened = nullptr;
            const Acad::ErrorStatus status =
                acdbOpenAcDbEntity(opened, m_id, what == 'r' ? AcDb::kForRead : AcDb::kForWrite);
            m_entity = opened != nullptr ? opened : m_entity;
            EXPECT_EQ(opened == nullptr, status != Acad::eOk);
            return status;
        }
        return what == 'u'   ? m_entity->upgradeOpen()
               : what == 'd' ? m_entity->downgradeOpen()
                             : m_entity->close();
    }

    AcDbObjectId m_id;
    AcDbEntity* m_entity = nullptr;
};

const Step steps[] = {
    {"r", Acad::eOk},
    {"w", Acad::eOk},
    {"rr", Acad::eOk},
    {"rw", Acad::eWasOpenForRead},
    {"wr", Acad::eWasOpenForWrite},
    {"ww", Acad::eWasOpenForWrite},
    {"ru", Acad::eOk},
    {"rru", Acad::eHadMultipleReaders},
    {"rruc", Acad::eOk},  // a refused upgrade leaves both readers
    {"rrucc", Acad::eOk},
    {"rrcu", Acad::eOk},
    {"wu", Acad::eWasOpenForWrite},
    {"wd", Acad::eOk},
    {"wdr", Acad::eOk},  // a second reader beside the downgraded one
    {"wdw", Acad::eWasOpenForRead},
    {"rd", Acad::eWasOpenForRead},
    {"rcw", Acad::eOk},
    {"wcwcr", Acad::eOk},
};

TEST(Open, eachWayToOpenMeetsTheOthersWithItsStatus)
{
    for (const Step& step : steps)
    {
        EmptyDrawing drawing;
        EXPECT_EQ(Opener(drawing.addLine(0, 0, 1, 1)).run(step.what), step.last) << step.what;
    }
}

TEST(Open, theSameHoldsForAnEntityThatIsNotALine)
{
    for (const Step& step : steps)
    {
        EmptyDrawing drawing;
        const AcDbObjectId id = drawing.add(new AcDbText(AcGePoint3d(), L"a"));
        EXPECT_EQ(Opener(id).run(step.what), step.last) << step.what;
    }
}

// The host reuses the object of one line for another; no trace of the former line may be visible.
TEST(Open, amongManyLinesEachOneThatIsOpenedIsItself)
{
    EmptyDrawing drawing;
    AcDbObjectIdArray ids;
    for (int i = 0; i < 40; ++i)
    {
        auto* line = new AcDbLine(AcGePoint3d(i, 0, i), AcGePoint3d(i, 1, -i));
        line->setColorIndex(Adesk::UInt16(i));
        line->setVisibility(i % 3 == 0 ? AcDb::kInvisible : AcDb::kVisible);
        ids.append(drawing.add(line));
    }
    for (int i = 0; i < 80; ++i)
    {
        const int one = i % 40, other = i * 7 % 40;
        AcDbObjectPointer<AcDbLine> line(ids[one], AcDb::kForRead);
        ASSERT_EQ(line->objectId(), ids[one]);
        ASSERT_EQ(line->startPoint().x, one);
        ASSERT_EQ(line->endPoint().z, -one);
        ASSERT_EQ(line->colorIndex(), one);
        ASSERT_EQ(line->visibility(), one % 3 == 0 ? AcDb::kInvisible : AcDb::kVisible);
        ASSERT_FALSE(line->isWriteEnabled());
        if (other != one)
        {
            AcDbObjectPointer<AcDbLine> second(ids[other], AcDb::kForWrite);
            ASSERT_EQ(second->startPoint().x, other);
            ASSERT_EQ(second->setEndPoint(AcGePoint3d(other, 2, -other)), Acad::eOk);
            ASSERT_EQ(line->endPoint().z, -one);
        }
    }
}

TEST(Open, twoHundredAndFiftySixReadersAreTheMost)
{
    EmptyDrawing drawing;
    Opener opener(drawing.addLine(0, 0, 1, 1));
    for (int i = 0; i < 256; ++i)
    {
        ASSERT_EQ(opener.run("r"), Acad::eOk);
    }
    EXPECT_EQ(opener.run("r"), Acad::eAtMaxReaders);
}

TEST(Open, aNullIdAnErasedObjectAndAWrongClassAreRefused)
{
    EmptyDrawing drawing;
    AcDbEntity* entity = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(entity, AcDbObjectId::kNull, AcDb::kForRead), Acad::eNullObjectId);
    AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    AcDbText* text = nullptr;
    EXPECT_EQ(acdbOpenObject(text, id), Acad::eNotThatKindOfClass);
    EXPECT_EQ(acdbOpenAcDbEntity(entity, drawing->clayer(), AcDb::kForRead),
              Acad::eNotThatKindOfClass);

    ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(entity->erase(), Acad::eOk);
    EXPECT_EQ(entity->erase(), Acad::eWasErased);
    EXPECT_EQ(entity->close(), Acad::eOk);
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForRead), Acad::eWasErased);
    EXPECT_EQ(entity, nullptr);
    ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForWrite, true), Acad::eOk);
    EXPECT_EQ(entity->erase(false), Acad::eOk);
    entity->close();
    EXPECT_FALSE(id.isErased());
}

TEST(Open, aLineKeepsEveryPropertyWhileItIsClosed)
{
    EmptyDrawing drawing;
    auto* line = new AcDbLine(AcGePoint3d(1, 2, 3), AcGePoint3d(4, 5, 6));
    line->setDatabaseDefaults();
    line->setColorIndex(12);
    line->setLinetype(L"continuous");
    line->setLineWeight(AcDb::kLnWt025);
    line->setVisibility(AcDb::kInvisible);
    const AcDbObjectId id = drawing.add(line);
    for (int i = 0; i < 3; ++i)
    {
        AcDbObjectPointer<AcDbLine> again(id, AcDb::kForRead);
        ASSERT_EQ(again.openStatus(), Acad::eOk);
        EXPECT_TRUE(again->startPoint() == AcGePoint3d(1, 2, 3));
        EXPECT_TRUE(again->endPoint() == AcGePoint3d(4, 5, 6));
        EXPECT_EQ(again->colorIndex(), 12);
        EXPECT_EQ(host::recordName(again->linetypeId()), L"Continuous");
        EXPECT_EQ(again->layerId(), drawing->clayer());
        EXPECT_EQ(again->lineWeight(), AcDb::kLnWt025);
        EXPECT_EQ(again->visibility(), AcDb::kInvisible);
        EXPECT_EQ(again->objectId(), id);
        EXPECT_EQ(host::recordName(again->ownerId()), L"*Model_Space");
        EXPECT_EQ(again->database(), &drawing.database());
    }
}

TEST(Open, aChangedLineIsStillChangedWhenOpenedAgain)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    {
        AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite);
        line->setEndPoint(AcGePoint3d(7, 8, 9));
        line->setColorIndex(3);
    }
    AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
    EXPECT_TRUE(line->endPoint() == AcGePoint3d(7, 8, 9));
    EXPECT_EQ(line->colorIndex(), 3);
}

TEST(Open, aClosedEntityCanBeShownAndKnowsItsId)
{
    EmptyDrawing drawing;
    AcDbEntity* const entities[] = {new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0)),
                                    new AcDbText};
    for (AcDbEntity* entity : entities)
    {
        const AcDbObjectId id = drawing.add(entity);
        EXPECT_EQ(entity->objectId(), id);
        EXPECT_FALSE(id.stub()->flags & AcDbStub::isDrawn);
        EXPECT_EQ(entity->draw(), Acad::eOk);
        EXPECT_TRUE(id.stub()->flags & AcDbStub::isDrawn);
        EXPECT_FALSE(entity->isReadEnabled());
        EXPECT_EQ(entity->close(), Acad::eNotOpenForWrite);
    }
}

TEST(Open, theSecondCloseAfterAnAppendGivesAStatusAndNothingElse)
{
    EmptyDrawing drawing;
    auto* line = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0));
    const AcDbObjectId id = drawing.add(line);
    EXPECT_EQ(line->draw(), Acad::eOk);
    EXPECT_EQ(line->close(), Acad::eNotOpenForWrite);
    EXPECT_EQ(line->objectId(), id);
    host::requireNothingOpen(drawing.database(), "test");
}

TEST(Open, aNewObjectCannotBeClosed)
{
    AcDbLine line;
    EXPECT_EQ(line.close(), Acad::eNotInDatabase);
    EXPECT_EQ(line.erase(), Acad::eNotInDatabase);
}

TEST(Open, anEntityOnALockedLayerIsNotOpenedForWrite)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForWrite);
        layer->setIsLocked(true);
        EXPECT_EQ(layer->setIsFrozen(true), Acad::eInvalidLayer) << "the current layer";
    }
    AcDbEntity* entity = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForWrite), Acad::eOnLockedLayer);
    {
        AcDbObjectPointer<AcDbLine> line(id, AcDb::kForWrite, false, true);
        EXPECT_EQ(line.openStatus(), Acad::eOk);
    }
    ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(entity->upgradeOpen(), Acad::eOnLockedLayer);
    // An object that the host refused may stay open: the command ends without a message.
    host::requireNothingOpen(drawing.database(), "test");
}

class StrictHost : public testing::Test
{
protected:
    StrictHost() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    EmptyDrawing drawing;
};

TEST_F(StrictHost, stopsOnAnObjectClosedTwice)
{
    AcDbLayerTable* table = nullptr;
    drawing->getLayerTable(table, AcDb::kForRead);
    table->close();
    EXPECT_EXIT(table->close(), testing::ExitedWithCode(1), "AcDbObject::close: .*already closed");
}

TEST_F(StrictHost, stopsOnAThirdCloseAfterAnAppend)
{
    auto* line = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0));
    drawing.add(line);
    line->close();
    EXPECT_EXIT(line->close(), testing::ExitedWithCode(1), "AcDbObject::close: .*AcDbLine");
}

TEST_F(StrictHost, stopsOnAChangeOfAnObjectOpenForRead)
{
    AcDbObjectPointer<AcDbLine> line(drawing.addLine(0, 0, 1, 1), AcDb::kForRead);
    EXPECT_EXIT(line->setColorIndex(1), testing::ExitedWithCode(1),
                "AcDbEntity::setColorIndex: .*not open for write");
}

TEST_F(StrictHost, stopsOnAChangeOfAClosedLine)
{
    auto* line = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0));
    drawing.add(line);
    EXPECT_EXIT(line->setEndPoint(AcGePoint3d()), testing::ExitedWithCode(1),
                "AcDbLine::setEndPoint: .*not open for write");
}

TEST_F(StrictHost, stopsWhenACommandLeavesAnObjectOpen)
{
    AcDbEntity* entity = nullptr;
    acdbOpenAcDbEntity(entity, drawing.addLine(0, 0, 1, 1), AcDb::kForRead);
    EXPECT_EXIT(host::requireNothingOpen(drawing.database(), "zv_netrax"),
                testing::ExitedWithCode(1), "zv_netrax: the AcDbLine with handle .*left open");
    entity->close();
}

TEST_F(StrictHost, stopsOnADeleteOfAnObjectOfTheDatabase)
{
    AcDbEntity* entity = nullptr;
    acdbOpenAcDbEntity(entity, drawing.add(new AcDbText(AcGePoint3d(), L"a")), AcDb::kForWrite);
    EXPECT_EXIT(delete entity, testing::ExitedWithCode(1), "AcDbObject::~AcDbObject");
    entity->close();
}
}  // namespace
