#include "output/entities.h"

#include "host/database/packing.h"
#include "output/labels.h"
#include "tests/support/letgo.h"
#include "tests/support/opendrawing.h"

using tests::inspect;
using tests::near;

namespace
{
class Entities : public tests::OpenDrawing
{
protected:
    AcDbLayerTableRecord& layer(const wchar_t* name) const
    {
        return static_cast<AcDbLayerTableRecord&>(
            *host::resolve(host::findRecord(database().layerTableId(), name).stub()));
    }
    // A second layer, so that a test can tell it from the current one.
    AcDbLayerTableRecord* addLayer(const wchar_t* name)
    {
        host::DatabaseCore& core = host::coreOf(database());
        return core.addLoadedRecord<AcDbLayerTableRecord>(core.roots()[host::Root::layerTable],
                                                          name, core.handles().take());
    }
    template <class Record>
    void addErased(AcDbStub* table, const wchar_t* name)
    {
        host::DatabaseCore& core = host::coreOf(database());
        const AcDbObjectId id =
            core.addLoadedRecord<Record>(table, name, core.handles().take())->objectId();
        AcDbObjectPointer<Record>(id, AcDb::kForWrite)->erase();
    }
    AcDbObjectId addPlainLine()
    {
        return addLine(true, {0, 0, 0}, {10, 0, 0}, 0, nullptr, nullptr, ACDB_MODEL_SPACE);
    }
};

AcGePoint3dArray corners(std::initializer_list<AcGePoint3d> list)
{
    AcGePoint3dArray points;
    for (const AcGePoint3d& point : list)
    {
        points.append(point);
    }
    return points;
}

AcGePoint3dArray verticesOf(const AcDbObjectId& id)
{
    return inspect<AcDb2dPolyline>(id,
                                   [](const AcDb2dPolyline& frame)
                                   {
                                       AcGePoint3dArray points;
                                       frame.getStretchPoints(points);
                                       return points;
                                   });
}

AcDbObjectId addFrame(bool inUcs, const AcGePoint3dArray& points)
{
    return addPolylineFrame(inUcs, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
}

std::wstring linetypeOf(const AcDbEntity& entity)
{
    return host::recordName(entity.linetypeId());
}

TEST_F(Entities, aLineLooksAsTheGridLinesDo)
{
    host::currentOf(database()).lineWeight = 25;  // of the drawing's own new lines
    const AcDbObjectId id =
        addLine(true, {1, 2, 0}, {3, 4, 0}, 12, nullptr, nullptr, ACDB_MODEL_SPACE);
    ASSERT_FALSE(id.isNull());
    inspect<AcDbLine>(id,
                      [&](const AcDbLine& line)
                      {
                          EXPECT_TRUE(near(line.startPoint(), {1, 2, 0}));
                          EXPECT_TRUE(near(line.endPoint(), {3, 4, 0}));
                          EXPECT_EQ(line.colorIndex(), 12);
                          EXPECT_EQ(line.lineWeight(), AcDb::kLnWtByLayer);
                          EXPECT_EQ(linetypeOf(line), L"Continuous");
                          EXPECT_EQ(host::recordName(line.layerId()), L"0");
                          EXPECT_EQ(line.ownerId().stub(),
                                    host::coreOf(database()).roots()[host::Root::modelSpace]);
                          return 0;
                      });
}

TEST_F(Entities, colourNoughtLeavesTheDrawingsCurrentColour)
{
    host::currentOf(database()).color = 3;
    const AcDbObjectId line = addPlainLine();
    const AcDbObjectId frame = addPolylineFrame(true, corners({{0, 0, 0}, {9, 0, 0}}), 0, nullptr,
                                                nullptr, ACDB_MODEL_SPACE);
    const auto color = [](const AcDbEntity& entity) { return entity.colorIndex(); };
    EXPECT_EQ(inspect<AcDbLine>(line, color), 3);
    EXPECT_EQ(inspect<AcDb2dPolyline>(frame, color), 3);
}

TEST_F(Entities, theCurrentLinetypeIsNeverTakenAndAnUnknownOneIsContinuous)
{
    host::currentOf(database()).linetype =
        host::findRecord(database().linetypeTableId(), L"ByBlock").stub();
    EXPECT_EQ(inspect<AcDbLine>(addPlainLine(), linetypeOf), L"Continuous");
    const AcDbObjectId missing =
        addLine(true, {0, 0, 0}, {1, 0, 0}, 1, nullptr, L"NoSuchDashes", ACDB_MODEL_SPACE);
    EXPECT_EQ(inspect<AcDbLine>(missing, linetypeOf), L"Continuous");
    const AcDbObjectId loaded =
        addLine(true, {0, 0, 0}, {1, 0, 0}, 1, nullptr, L"BYBLOCK", ACDB_MODEL_SPACE);
    EXPECT_EQ(inspect<AcDbLine>(loaded, linetypeOf), L"ByBlock");
}

TEST_F(Entities, linetypesAreFoundOnlyWhenTheyAreLoaded)
{
    EXPECT_FALSE(linetypeExists(nullptr));
    EXPECT_FALSE(linetypeExists(L"NoSuchDashes"));
    EXPECT_TRUE(linetypeExists(L"Continuous"));
    addErased<AcDbLinetypeTableRecord>(host::coreOf(database()).roots()[host::Root::linetypeTable],
                                       L"Dashed");
    EXPECT_FALSE(linetypeExists(L"Dashed"));
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_FALSE(linetypeExists(L"Continuous"));
}

TEST_F(Entities, aLayerIsThawedUnlockedAndTurnedOnBeforeAnEntityIsPutOnIt)
{
    AcDbLayerTableRecord* const walls = addLayer(L"Walls");
    host::setFlags(*walls, {true, true, true});
    const AcDbObjectId line =
        addLine(true, {0, 0, 0}, {1, 0, 0}, 1, L"walls", nullptr, ACDB_MODEL_SPACE);
    EXPECT_FALSE(layer(L"Walls").isFrozen());
    EXPECT_FALSE(layer(L"Walls").isLocked());
    EXPECT_FALSE(layer(L"Walls").isOff());
    EXPECT_EQ(
        inspect<AcDbLine>(line, [](const AcDbLine& l) { return host::recordName(l.layerId()); }),
        L"Walls");
}

TEST_F(Entities, aLayerIsOnlyLookedAtWhenItNeedNotBeMadeUsable)
{
    host::setFlags(*addLayer(L"Walls"), {true, true, true});
    EXPECT_TRUE(makeLayerUsable(L"Walls", false));
    EXPECT_TRUE(layer(L"Walls").isFrozen());
    EXPECT_TRUE(layer(L"Walls").isLocked());
    EXPECT_TRUE(layer(L"Walls").isOff());
}

TEST_F(Entities, anUnknownLayerIsNotMadeAndLeavesTheCurrentOne)
{
    EXPECT_FALSE(makeLayerUsable(nullptr, true));
    EXPECT_FALSE(makeLayerUsable(L"NoSuchLayer", true));
    EXPECT_FALSE(makeLayerUsable(L"NoSuchLayer", false));
    const AcDbObjectId line =
        addLine(true, {0, 0, 0}, {1, 0, 0}, 1, L"NoSuchLayer", nullptr, ACDB_MODEL_SPACE);
    EXPECT_EQ(
        inspect<AcDbLine>(line, [](const AcDbLine& l) { return host::recordName(l.layerId()); }),
        L"0");
    EXPECT_TRUE(host::findRecord(database().layerTableId(), L"NoSuchLayer").isNull());
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_FALSE(makeLayerUsable(L"0", true));
}

TEST_F(Entities, aLayerThatSomeoneReadsIsNotUsable)
{
    AcDbSymbolTableRecordPointer<AcDbLayerTableRecord> reader(L"0", &database(), AcDb::kForRead);
    EXPECT_TRUE(makeLayerUsable(L"0", false));
    EXPECT_FALSE(makeLayerUsable(L"0", true));
}

TEST_F(Entities, pointsInTheUcsAreCarriedToTheirPlaceAndWorldPointsStayWhereTheyAre)
{
    setUcs({100, 200, 5}, 90);
    addLine(true, {1, 0, 0}, {1, 2, 0}, 1, nullptr, nullptr, ACDB_MODEL_SPACE);
    addLine(false, {1, 0, 0}, {1, 2, 3}, 1, nullptr, nullptr, ACDB_MODEL_SPACE);
    const std::vector<tests::LineSeen> seen = lines();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_TRUE(near(seen[0].start, {100, 201, 5}));
    EXPECT_TRUE(near(seen[0].end, {98, 201, 5}));
    EXPECT_TRUE(near(seen[1].start, {1, 0, 0}));
    EXPECT_TRUE(near(seen[1].end, {1, 2, 3}));
}

TEST_F(Entities, aFrameOfWorldPointsStandsWhereTheyAreAndLeavesTheCallersAlone)
{
    setUcs({100, 200, 5}, 30);
    const AcGePoint3dArray points = corners({{0, 0, 5}, {9, 0, 5}, {9, 9, 5}, {0, 0, 5}});
    const AcGePoint3dArray before = points;
    const AcGePoint3dArray seen = verticesOf(addFrame(false, points));
    ASSERT_EQ(seen.length(), 3);
    ASSERT_EQ(points.length(), 4);
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(near(seen[i], before[i]));
        EXPECT_EQ(points[i].x, before[i].x);
        EXPECT_EQ(points[i].y, before[i].y);
    }
    AcGePoint3d start(1, 2, 3);
    addLine(false, start, {4, 5, 6}, 1, nullptr, nullptr, ACDB_MODEL_SPACE);
    EXPECT_TRUE(near(start, {1, 2, 3}, 0));
}

TEST_F(Entities, aFrameIsClosedWhenItsEndsCoincideAndNoCornerIsDoubled)
{
    struct Row
    {
        AcGePoint3dArray points;
        int vertices;  // 0: no frame
        bool closed;
    };
    const Row rows[] = {
        {corners({}), 0, false},
        {corners({{0, 0, 0}}), 0, false},
        {corners({{0, 0, 0}, {9, 0, 0}}), 2, false},
        {corners({{0, 0, 0}, {0, 0, 0}}), 1,
         true},  // a frame without any size is tried all the same
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 0, 0}}), 3, true},
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {5e-11, 0, 0}}), 3, true},
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 0, 1e-10}}), 4,
         false},  // the tolerance itself
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {1e-9, 0, 0}}), 4, false},
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}, {0, 0, 0}}), 4, true},
        {corners({{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}}), 4, false},
        // at survey coordinates the next double is not another point
        {corners({{1e7, 1e7, 0}, {2e7, 1e7, 0}, {1e7, 2e7, 0}, {1e7 + 2e-9, 1e7, 0}}), 3, true},
        {corners({{1e7, 1e7, 0}, {2e7, 1e7, 0}, {1e7, 2e7, 0}, {1e7 + 1e-6, 1e7, 0}}), 4, false},
    };
    for (const Row& row : rows)
    {
        const AcDbObjectId id = addFrame(true, row.points);
        ASSERT_EQ(id.isNull(), row.vertices == 0);
        if (!id.isNull())
        {
            EXPECT_EQ(verticesOf(id).length(), row.vertices);
            EXPECT_EQ(inspect<AcDb2dPolyline>(
                          id, [](const AcDb2dPolyline& f) { return bool(f.isClosed()); }),
                      row.closed);
        }
    }
}

TEST_F(Entities, aFrameLooksAsTheOutlineDoes)
{
    host::currentOf(database()).lineWeight = 25;
    const AcDbObjectId id = addFrame(true, corners({{0, 0, 7}, {9, 0, 8}, {9, 9, 9}}));
    inspect<AcDb2dPolyline>(id,
                            [](const AcDb2dPolyline& frame)
                            {
                                EXPECT_EQ(frame.colorIndex(), 250);
                                EXPECT_EQ(linetypeOf(frame), L"Continuous");
                                EXPECT_EQ(frame.lineWeight(), AcDb::kLnWtByLayer);
                                EXPECT_TRUE(frame.isLinetypeGenerationOn());
                                EXPECT_EQ(frame.elevation(), 0);
                                EXPECT_EQ(frame.defStartWidth(), 0);
                                EXPECT_EQ(frame.defEndWidth(), 0);
                                return 0;
                            });
    EXPECT_TRUE(near(verticesOf(id)[2], {9, 9, 0}));
}

TEST_F(Entities, nothingIsMadeWithoutADrawingOrWithoutTheBlock)
{
    const tests::LetGo letGo;
    AcDbObjectId id;
    AcDbLine loose({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(appendToBlock(&loose, id, L"NoSuchBlock"), Acad::eKeyNotFound);
    EXPECT_TRUE(addLine(true, {0, 0, 0}, {1, 0, 0}, 1, nullptr, nullptr, L"NoSuchBlock").isNull());
    addErased<AcDbBlockTableRecord>(host::coreOf(database()).roots()[host::Root::blockTable],
                                    L"Gone");
    EXPECT_EQ(appendToBlock(&loose, id, L"Gone"), Acad::eWasErased);
    EXPECT_EQ(entities().length(), 0);
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(appendToBlock(&loose, id, ACDB_MODEL_SPACE), Acad::eNoDatabase);
    EXPECT_EQ(Acad::eNoDatabase, 124);
    EXPECT_TRUE(addPlainLine().isNull());
    EXPECT_TRUE(addFrame(true, corners({{0, 0, 0}, {1, 0, 0}})).isNull());
}

TEST_F(Entities, nothingIsMadeWhileSomeoneWritesTheTableOfBlocks)
{
    const tests::LetGo letGo;
    AcDbObjectPointer<AcDbBlockTable> writer(
        AcDbObjectId(host::coreOf(database()).roots()[host::Root::blockTable]), AcDb::kForWrite);
    AcDbObjectId id;
    AcDbLine loose({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(appendToBlock(&loose, id, ACDB_MODEL_SPACE), Acad::eWasOpenForWrite);
    EXPECT_TRUE(addPlainLine().isNull());
}

TEST_F(Entities, anEntityOfTheDrawingIsNotTakenASecondTimeAndStaysOpen)
{
    AcDbObjectPointer<AcDbLine> line(addPlainLine(), AcDb::kForWrite);
    AcDbObjectId id;
    EXPECT_EQ(appendToBlock(line.object(), id, ACDB_MODEL_SPACE), Acad::eAlreadyInDb);
    EXPECT_TRUE(id.isNull());
    EXPECT_TRUE(line->isWriteEnabled());
}

TEST_F(Entities, anAppendedEntityIsClosedAndARefusedOneIsNot)
{
    AcDbLine* const line = new AcDbLine({0, 0, 0}, {1, 0, 0});
    AcDbObjectId id;
    EXPECT_EQ(appendToBlock(line, id, ACDB_MODEL_SPACE), Acad::eOk);
    EXPECT_FALSE(id.isNull());
    EXPECT_TRUE(tests::isA<AcDbLine>(id));
    AcDbLine refused({0, 0, 0}, {1, 0, 0});
    EXPECT_NE(appendToBlock(&refused, id, L"NoSuchBlock"), Acad::eOk);
    EXPECT_TRUE(refused.isWriteEnabled());
}

// A preview that appeared only at the end of the command would be useless.
TEST_F(Entities, everythingIsShownAtOnce)
{
    addPlainLine();
    addFrame(true, corners({{0, 0, 0}, {9, 0, 0}}));
    addLabelText(true, L"X=1", {0, 0, 0}, 1, 0, 0, L"Standard", AcDb::kTextLeft, AcDb::kTextBottom,
                 ACDB_MODEL_SPACE);
    AcDbObjectId unseen;
    appendToBlock(new AcDbLine({0, 0, 0}, {1, 0, 0}), unseen, ACDB_MODEL_SPACE);
    const AcDbObjectIdArray ids = entities();
    ASSERT_EQ(ids.length(), 4);
    for (int i = 0; i < ids.length(); ++i)
    {
        EXPECT_EQ((ids[i].stub()->flags & AcDbStub::isDrawn) != 0, ids[i] != unseen) << i;
    }
}

TEST_F(Entities, anErasedEntityIsGoneAndCannotBeErasedAgain)
{
    const AcDbObjectId id = addPlainLine();
    EXPECT_EQ(eraseEntity(id), Acad::eOk);
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(eraseEntity(id), Acad::eCannotBeErasedByCaller);
    EXPECT_EQ(eraseEntity(AcDbObjectId::kNull), Acad::eCannotBeErasedByCaller);
    EXPECT_EQ(Acad::eCannotBeErasedByCaller, 105);
}

TEST_F(Entities, anEntityOnALockedLayerStaysAndStaysOpen)
{
    const AcDbObjectId id = addPlainLine();
    layer(L"0");
    host::setFlags(layer(L"0"), {false, true, false});
    EXPECT_EQ(eraseEntity(id), Acad::eOnLockedLayer);
    EXPECT_FALSE(id.isErased());
    EXPECT_TRUE(host::resolve(id.stub())->isReadEnabled());
    closeLeftOpen(id);
}

class Stubborn : public AcDbText
{
public:
    Acad::ErrorStatus erase(Adesk::Boolean) override { return Acad::eWasErased; }
};

TEST_F(Entities, anEntityThatDoesNotLetItselfBeErasedStaysOpenForWrite)
{
    AcDbObjectId id;
    ASSERT_EQ(appendToBlock(new Stubborn, id, ACDB_MODEL_SPACE), Acad::eOk);
    EXPECT_EQ(eraseEntity(id), Acad::eWasErased);
    EXPECT_FALSE(id.isErased());
    EXPECT_TRUE(host::resolve(id.stub())->isWriteEnabled());
    closeLeftOpen(id);
}
}  // namespace
