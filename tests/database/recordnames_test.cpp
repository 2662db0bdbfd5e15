#include "host/database/recordnames.h"

#include <gtest/gtest.h>

#include "tests/support/stubs.h"

namespace
{
TEST(RecordNames, findTheFirstRecordOfANameInAnyLetterCase)
{
    host::RecordNames names;
    support::Stubs stubs;
    AcDbStub &walls = stubs.add(), &axes = stubs.add(), &again = stubs.add();
    names.add(L"Walls", &walls);
    names.add(L"Оси", &axes);
    names.add(L"WALLS", &again);
    EXPECT_EQ(names.find(L"wALLs"), &walls);
    EXPECT_EQ(names.find(L"оСИ"), &axes);
    EXPECT_EQ(names.find(L""), nullptr);
    EXPECT_EQ(names.find(L"Wall"), nullptr);
    EXPECT_EQ(names.inOrder(), (std::vector<AcDbStub*>{&walls, &axes, &again}));
}

TEST(RecordNames, anAnswerIsNotTakenForThatOfAnotherName)
{
    host::RecordNames names;
    support::Stubs stubs;
    AcDbStub &walls = stubs.add(), &axes = stubs.add();
    EXPECT_EQ(names.find(L"Walls"), nullptr);
    names.add(L"Walls", &walls);
    names.add(L"Axes", &axes);
    for (int i = 0; i < 2; ++i)  // the second answer is remembered from the first
    {
        EXPECT_EQ(names.find(L"Walls"), &walls);
        EXPECT_EQ(names.find(L"Walls"), &walls);
        EXPECT_EQ(names.find(L"Axes"), &axes);
        EXPECT_EQ(names.find(L"None"), nullptr);
        EXPECT_EQ(names.find(L"Axes"), &axes);
    }
}

TEST(RecordNames, aNameStaysWhereItIsWhenMoreRecordsCome)
{
    host::RecordNames names;
    support::Stubs stubs;
    AcDbStub& record = stubs.add();
    const std::wstring& first = names.add(L"First", &record);
    for (int i = 0; i < 10000; ++i)
    {
        names.add(L"N" + std::to_wstring(i), &record);
    }
    EXPECT_EQ(first, L"First");
}
}  // namespace
