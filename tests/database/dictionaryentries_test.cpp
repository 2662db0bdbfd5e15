#include "host/database/dictionaryentries.h"

#include <gtest/gtest.h>

#include "tests/support/stubs.h"

namespace
{
using host::DictionaryEntries;

;

TEST(DictionaryEntries, areFoundInAnyLetterCaseUntilTheyAreErased)
{
    DictionaryEntries entries;
    support::Stubs stubs;
    AcDbStub& grid = stubs.add();
    entries.put(L"Сетка", &grid);
    EXPECT_EQ(entries.find(L"сЕТКА"), &grid);
    EXPECT_EQ(entries.find(L"Сетк"), nullptr);
    grid.setErased(true);
    EXPECT_EQ(entries.find(L"Сетка"), nullptr);
    EXPECT_EQ(entries.inOrder().size(), 1u);
}

TEST(DictionaryEntries, aNewEntryErasesTheFormerOneOfItsName)
{
    DictionaryEntries entries;
    support::Stubs stubs;
    AcDbStub &former = stubs.add(), &other = stubs.add(), &next = stubs.add();
    entries.addLoaded(L"GRID", &former);
    entries.put(L"OTHER", &other);
    entries.put(L"grid", &next);
    EXPECT_TRUE(former.erased());
    EXPECT_FALSE(other.erased());
    EXPECT_EQ(entries.find(L"Grid"), &next);
    EXPECT_TRUE(entries.inOrder()[0].loaded);
    EXPECT_FALSE(entries.inOrder()[2].loaded);
}

struct Case
{
    std::vector<const wchar_t*> loaded;
    const wchar_t* next;
};

TEST(DictionaryEntries, anAnonymousOneGetsANameThatNoEntryHasHad)
{
    const Case cases[] = {
        {{}, L"*A1"},
        {{L"*A1", L"*A7", L"*A3"}, L"*A8"},
        {{L"*A", L"A9", L"*B9", L"GRID"}, L"*A1"},
        {{L"*A4294967295"}, L"*A4294967296"},
        {{L"*A18446744073709551615"}, L"*A0"},  // the numbers begin again
        {{L"*A18446744073709551615", L"*A0", L"*a1"}, L"*A2"},
        {{L"*A99999999999999999999999"}, L"*A0"},
    };
    for (const Case& row : cases)
    {
        DictionaryEntries entries;
        support::Stubs stubs;
        AcDbStub& any = stubs.add();
        for (const wchar_t* key : row.loaded)
        {
            entries.addLoaded(key, &any);
        }
        EXPECT_EQ(entries.keyFor(L"*A"), row.next);
        EXPECT_EQ(entries.keyFor(L"GRID"), L"GRID");
    }
}

TEST(DictionaryEntries, theNameOfAnErasedEntryIsNotGivenAgain)
{
    DictionaryEntries entries;
    support::Stubs stubs;
    AcDbStub& first = stubs.add();
    entries.put(entries.keyFor(L"*A"), &first);
    first.setErased(true);
    EXPECT_EQ(entries.keyFor(L"*A"), L"*A2");
}
}  // namespace
