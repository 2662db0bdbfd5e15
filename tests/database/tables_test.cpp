#include <gtest/gtest.h>

#include <memory>

#include "acutmem.h"
#include "dbdict.h"
#include "dbgroup.h"
#include "dbobjptr.h"
#include "host/database/packing.h"
#include "host/database/undo.h"
#include "tests/support/emptydrawing.h"

namespace
{
TEST(SymbolTables, namesAreFoundInAnyLetterCase)
{
    EmptyDrawing drawing;
    drawing.core().addLoadedRecord<AcDbLayerTableRecord>(
        drawing.core().roots()[host::Root::layerTable], L"Фундамент", 0xF00);
    AcDbSymbolTablePointer<AcDbLayerTable> table(&drawing.database(), AcDb::kForRead);
    AcDbObjectId id;
    EXPECT_EQ(table->getAt(L"фУНДАМЕНТ", id), Acad::eOk);
    EXPECT_EQ(host::recordName(id), L"Фундамент");
    EXPECT_EQ(table->getAt(L"Отметки", id), Acad::eKeyNotFound);
    EXPECT_TRUE(id.isNull());
    EXPECT_TRUE(table->has(L"0"));
}

TEST(SymbolTables, aRecordIsOpenedByNameOrNotAtAll)
{
    EmptyDrawing drawing;
    AcDbSymbolTableRecordPointer<AcDbLayerTableRecord> none(L"none", &drawing.database(),
                                                            AcDb::kForRead);
    EXPECT_EQ(none.openStatus(), Acad::eKeyNotFound);
    AcDbSymbolTableRecordPointer<AcDbTextStyleTableRecord> style(L"STANDARD", &drawing.database(),
                                                                 AcDb::kForRead);
    ASSERT_EQ(style.openStatus(), Acad::eOk);
    EXPECT_EQ(style->xScale(), 1);
    EXPECT_EQ(style->obliquingAngle(), 0);
    EXPECT_EQ(style->textSize(), 0);
    ACHAR* name = nullptr;
    EXPECT_EQ(style->getName(name), Acad::eOk);
    EXPECT_STREQ(name, L"Standard");
    acutDelBuffer(name);
    EXPECT_EQ(name, nullptr);
}

TEST(SymbolTables, noDatabaseIsAStatus)
{
    AcDbSymbolTablePointer<AcDbLayerTable> table(static_cast<AcDbDatabase*>(nullptr),
                                                 AcDb::kForRead);
    EXPECT_EQ(table.openStatus(), Acad::eNoDatabase);
}

void addTextStyles(EmptyDrawing& drawing)
{
    for (const wchar_t* name : {L"B", L"A", L""})
    {
        drawing.core().addLoadedRecord<AcDbTextStyleTableRecord>(
            drawing.core().roots()[host::Root::textStyleTable], name, 0);
    }
}

std::vector<std::wstring> textStyles(EmptyDrawing& drawing)
{
    AcDbSymbolTablePointer<AcDbTextStyleTable> table(&drawing.database(), AcDb::kForRead);
    AcDbTextStyleTableIterator* made = nullptr;
    EXPECT_EQ(table->newIterator(made), Acad::eOk);
    const std::unique_ptr<AcDbTextStyleTableIterator> iterator(made);
    std::vector<std::wstring> names;
    for (iterator->start(); !iterator->done(); iterator->step())
    {
        AcDbTextStyleTableRecord* record = nullptr;
        if (iterator->getRecord(record) != Acad::eOk)
        {
            names.push_back(L"(none)");
            continue;
        }
        const ACHAR* name = nullptr;
        record->getName(name);
        names.push_back(name);
        record->close();
    }
    return names;
}

TEST(SymbolTables, theIteratorGoesInTableOrder)
{
    EmptyDrawing drawing;
    addTextStyles(drawing);
    EXPECT_EQ(textStyles(drawing), (std::vector<std::wstring>{L"Standard", L"B", L"A", L""}));
}

TEST(SymbolTables, theIteratorSkipsErasedRecords)
{
    struct Row
    {
        std::vector<const wchar_t*> erased;
        std::vector<std::wstring> left;
    };
    const Row rows[] = {
        {{L"Standard"}, {L"B", L"A", L""}},   {{L"A"}, {L"Standard", L"B", L""}},
        {{L"B", L"A"}, {L"Standard", L""}},   {{L"A", L""}, {L"Standard", L"B"}},
        {{L"Standard", L"B", L"A", L""}, {}},
    };
    for (const Row& row : rows)
    {
        EmptyDrawing drawing;
        addTextStyles(drawing);
        for (const wchar_t* name : row.erased)
        {
            AcDbSymbolTableRecordPointer<AcDbTextStyleTableRecord> style(name, &drawing.database(),
                                                                         AcDb::kForWrite);
            ASSERT_EQ(style.openStatus(), Acad::eOk);
            EXPECT_EQ(style->erase(), Acad::eOk);
        }
        EXPECT_EQ(textStyles(drawing), row.left);
    }
}

TEST(Block, anEntityIsAppendedOnce)
{
    EmptyDrawing drawing;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
    AcDbSymbolTablePointer<AcDbBlockTable> table(drawing->blockTableId(), AcDb::kForRead);
    AcDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(table->getAt(L"*MODEL_SPACE", record, AcDb::kForWrite), Acad::eOk);
    AcDbObjectId again;
    EXPECT_EQ(record->appendAcDbEntity(again, line.object()), Acad::eAlreadyInDb);
    EXPECT_TRUE(again.isNull());
    EXPECT_EQ(record->appendAcDbEntity(again, nullptr), Acad::eNullObjectPointer);
    record->close();
}

TEST(Block, anAppendedEntityStaysOpenForWriting)
{
    EmptyDrawing drawing;
    AcDbSymbolTablePointer<AcDbBlockTable> table(drawing->blockTableId(), AcDb::kForRead);
    AcDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(table->getAt(ACDB_MODEL_SPACE, record, AcDb::kForWrite), Acad::eOk);
    auto* line = new AcDbLine(AcGePoint3d(), AcGePoint3d(1, 0, 0));
    AcDbObjectId id;
    ASSERT_EQ(record->appendAcDbEntity(id, line), Acad::eOk);
    EXPECT_TRUE(line->isWriteEnabled());
    record->close();
    EXPECT_TRUE(line->isWriteEnabled());
    EXPECT_EQ(line->close(), Acad::eOk);
    EXPECT_FALSE(line->isWriteEnabled());
}

TEST(Block, unsetPropertiesGetTheDrawingsDefaultsAtTheAppend)
{
    EmptyDrawing drawing;
    host::currentOf(drawing.database()).color = 5;
    const AcDbObjectId id = drawing.addLine(0, 0, 1, 1);
    AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
    EXPECT_EQ(line->colorIndex(), 5);
    EXPECT_EQ(host::recordName(line->layerId()), L"0");
}

class Groups : public testing::Test
{
protected:
    AcDbGroup* make(const wchar_t* key)
    {
        AcDbDictionary* dictionary = nullptr;
        drawing->getGroupDictionary(dictionary, AcDb::kForWrite);
        auto* group = new AcDbGroup(L"grid", true);
        AcDbObjectId id;
        EXPECT_EQ(dictionary->setAt(key, group, id), Acad::eOk);
        EXPECT_EQ(group->objectId(), id);
        dictionary->close();
        return group;
    }

    bool has(const wchar_t* key)
    {
        AcDbDictionary* dictionary = nullptr;
        drawing->getGroupDictionary(dictionary, AcDb::kForRead);
        const bool found = dictionary->has(key);
        dictionary->close();
        return found;
    }

    EmptyDrawing drawing;
};

TEST_F(Groups, anonymousOnesAreNumberedAndNumbersAreNotUsedAgain)
{
    make(L"*")->close();
    EXPECT_TRUE(has(L"*A1"));
    AcDbGroup* second = make(L"*");
    EXPECT_TRUE(second->isAnonymous());
    second->erase();
    second->close();
    EXPECT_FALSE(has(L"*A2"));
    make(L"*")->close();
    EXPECT_TRUE(has(L"*A3"));
    AcDbGroup* named = make(L"Named");
    EXPECT_FALSE(named->isAnonymous());
    EXPECT_STREQ(named->description(), L"grid");
    named->close();
    EXPECT_TRUE(has(L"NAMED"));
}

TEST_F(Groups, aMemberIsTakenOnceAndKnowsItsGroups)
{
    AcDbGroup* group = make(L"*");
    const AcDbObjectId line = drawing.addLine(0, 0, 1, 1);
    const AcDbObjectId text = drawing.add(new AcDbText(AcGePoint3d(), L"a"));
    EXPECT_EQ(group->append(line), Acad::eOk);
    EXPECT_EQ(group->append(text), Acad::eOk);
    EXPECT_EQ(group->append(line), Acad::eAlreadyInGroup);
    EXPECT_EQ(group->append(AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(group->append(drawing->clayer()), Acad::eNotAnEntity);
    EXPECT_EQ(group->numEntities(), 2u);

    AcDbGroup* other = make(L"*");
    EXPECT_EQ(other->append(line), Acad::eOk);
    const auto countOf = [&](const AcDbObjectId& id)
    { return drawing.core().objects().reactors(host::reactorsOf(id.stub())).size(); };
    EXPECT_EQ(countOf(line), 2u);
    EXPECT_EQ(countOf(text), 1u);
    other->close();
    group->close();
}

TEST_F(Groups, anErasedMemberDoesNotCount)
{
    AcDbGroup* group = make(L"*");
    const AcDbObjectId line = drawing.addLine(0, 0, 1, 1);
    group->append(line);
    group->append(drawing.addLine(1, 1, 2, 2));
    {
        AcDbObjectPointer<AcDbLine> open(line, AcDb::kForWrite);
        open->erase();
    }
    AcDbObjectIdArray ids;
    EXPECT_EQ(group->allEntityIds(ids), 1u);
    EXPECT_NE(ids[0], line);
    group->close();
}

TEST_F(Groups, outsideADictionaryNothingCanBeAppended)
{
    AcDbGroup group(L"loose");
    EXPECT_EQ(group.append(drawing.addLine(0, 0, 1, 1)), Acad::eNotInDatabase);
}

TEST(Undo, takesBackEntitiesLayersAndCurrentPropertiesAndRedoDoesThemAgain)
{
    EmptyDrawing drawing;
    const AcDbObjectId before = drawing.addLine(0, 0, 1, 1);
    const host::UndoMark mark = host::undoMark(drawing.database());
    const AcDbObjectId after = drawing.addLine(1, 1, 2, 2);
    {
        AcDbObjectPointer<AcDbLine> line(before, AcDb::kForWrite);
        line->erase();
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForWrite);
        layer->setIsOff(true);
        layer->setIsOff(false);
        layer->setIsOff(true);
    }
    host::currentOf(drawing.database()).color = 1;
    const AcDbObjectId gone = drawing.addLine(3, 3, 4, 4);
    {
        AcDbObjectPointer<AcDbLine> line(gone, AcDb::kForWrite);
        line->erase();
    }
    const auto isOff = [&]
    {
        AcDbObjectPointer<AcDbLayerTableRecord> layer(drawing->clayer(), AcDb::kForRead);
        return layer->isOff();
    };
    for (int round = 0; round < 2; ++round)
    {
        const host::UndoneChanges changes = host::undoTo(drawing.database(), mark);
        EXPECT_FALSE(before.isErased());
        EXPECT_TRUE(after.isErased());
        EXPECT_TRUE(gone.isErased());
        EXPECT_EQ(host::currentOf(drawing.database()).color, 256);
        EXPECT_FALSE(isOff());

        host::redo(drawing.database(), changes);
        EXPECT_TRUE(before.isErased());
        EXPECT_FALSE(after.isErased());
        EXPECT_TRUE(gone.isErased());
        EXPECT_EQ(host::currentOf(drawing.database()).color, 1);
        EXPECT_TRUE(isOff());
    }
}
}  // namespace
