#include <gtest/gtest.h>

#include "dbobjptr.h"
#include "host/database/dictionaryentries.h"
#include "host/database/recordnames.h"
#include "host/database/rootobjects.h"
#include "host/database/tablerecords.h"
#include "tests/support/emptydrawing.h"

namespace
{
// Stubs that need no object.
class Names : public testing::Test
{
protected:
    AcDbStub* stub()
    {
        return drawing.core().objects().addForeign(drawing.core().handles().take());
    }

    EmptyDrawing drawing;
};

TEST_F(Names, aRecordIsFoundInAnyLetterCaseAsOftenAsItIsAskedFor)
{
    host::RecordNames names;
    AcDbStub* const walls = stub();
    AcDbStub* const doors = stub();
    names.add(L"Walls", walls);
    names.add(L"Двери", doors);
    struct Row
    {
        const wchar_t* asked;
        AcDbStub* found;
    };
    const Row rows[] = {
        {L"Walls", walls}, {L"Walls", walls}, {L"WALLS", walls}, {L"дВЕРИ", doors},
        {L"Walls", walls}, {L"Двери", doors}, {L"walls", walls}, {L"Wall", nullptr},
        {L"", nullptr},    {L"Walls", walls},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(names.find(row.asked), row.found);
    }
}

TEST_F(Names, ofTwoRecordsWithOneNameTheFirstIsFoundAndBothStay)
{
    host::RecordNames names;
    AcDbStub* const first = stub();
    AcDbStub* const second = stub();
    names.add(L"Walls", first);
    names.add(L"WALLS", second);
    EXPECT_EQ(names.find(L"walls"), first);
    EXPECT_EQ(names.inOrder(), (std::vector<AcDbStub*>{first, second}));
}

TEST_F(Names, aNameStaysWhereItIsHoweverManyFollow)
{
    host::RecordNames names;
    const std::wstring& kept = names.add(L"Walls", stub());
    for (int i = 0; i < 1000; ++i)
    {
        names.add(std::to_wstring(i), nullptr);
    }
    EXPECT_EQ(kept, L"Walls");
}

TEST_F(Names, aRecordAddedAfterItWasMissedIsFound)
{
    host::RecordNames names;
    EXPECT_EQ(names.find(L"Walls"), nullptr);
    AcDbStub* const walls = stub();
    names.add(L"Walls", walls);
    EXPECT_EQ(names.find(L"Walls"), walls);
}

TEST_F(Names, anonymousKeysGoOnFromTheHighestOfTheFile)
{
    struct Row
    {
        std::vector<const wchar_t*> loaded;
        const wchar_t* next;
    };
    const Row rows[] = {
        {{}, L"*A1"},        {{L"*A7"}, L"*A8"}, {{L"*A7", L"*A3"}, L"*A8"},
        {{L"*a9"}, L"*A1"},  // not one of the host's
        {{L"*Axy"}, L"*A1"}, {{L"A12"}, L"*A1"}, {{L"*A"}, L"*A1"},
    };
    for (const Row& row : rows)
    {
        host::DictionaryEntries entries;
        for (const wchar_t* key : row.loaded)
        {
            entries.addLoaded(key, stub());
        }
        EXPECT_EQ(entries.keyFor(L"*"), row.next);
        EXPECT_EQ(entries.keyFor(L"Named"), L"Named");
        EXPECT_NE(entries.keyFor(L"*"), row.next) << "a number is given once";
    }
}

TEST_F(Names, anEntryUnderAUsedKeyErasesTheFormerOne)
{
    host::DictionaryEntries entries;
    AcDbStub* const former = stub();
    AcDbStub* const latter = stub();
    entries.put(L"Grid", former);
    EXPECT_EQ(entries.find(L"GRID"), former);
    entries.put(L"grid", latter);
    EXPECT_TRUE(former->erased());
    EXPECT_EQ(entries.find(L"Grid"), latter);
    latter->setErased(true);
    EXPECT_EQ(entries.find(L"Grid"), nullptr);
    EXPECT_EQ(entries.inOrder().size(), 2u);
}

TEST(RootObjects, areNoneUntilTheyAreSet)
{
    const host::Root all[] = {host::Root::blockTable,      host::Root::layerTable,
                              host::Root::linetypeTable,   host::Root::textStyleTable,
                              host::Root::groupDictionary, host::Root::modelSpace};
    const host::RootObjects none;
    EmptyDrawing drawing;
    for (const host::Root root : all)
    {
        EXPECT_EQ(none[root], nullptr);
        EXPECT_NE(drawing.core().roots()[root], nullptr);
    }
    EXPECT_EQ(drawing.core().roots()[host::Root::layerTable], drawing->layerTableId().stub());
}

TEST(TableRecords, theHostSetsAClosedLayerWithoutANoteForUndo)
{
    EmptyDrawing drawing;
    auto* const layer = static_cast<AcDbLayerTableRecord*>(drawing->clayer().stub()->object);
    const std::size_t noted = drawing.core().undoLog().mark().layers;
    const host::LayerFlags flags{true, false, true};
    host::setFlags(*layer, flags);
    EXPECT_EQ(host::flagsOf(*layer), flags);
    EXPECT_EQ(drawing.core().undoLog().mark().layers, noted);
}
}  // namespace
