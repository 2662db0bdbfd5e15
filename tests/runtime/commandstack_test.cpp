#include "host/runtime/commandstack.h"

#include <gtest/gtest.h>

namespace
{
void first() {}
void second() {}

Acad::ErrorStatus add(host::CommandStack& stack, const wchar_t* group, const wchar_t* global,
                      const wchar_t* local, AcRxFunctionPtr function = first)
{
    return stack.addCommand(group, global, local, 0, function, nullptr, -1, nullptr, nullptr);
}

TEST(CommandStack, groupHoldsAGlobalAndALocalNameOnce)
{
    host::CommandStack stack;
    EXPECT_EQ(add(stack, L"A", L"grid", L"сетка"), Acad::eOk);
    EXPECT_EQ(add(stack, L"a", L"GRID", L"other"), Acad::eDuplicateKey);
    EXPECT_EQ(add(stack, L"A", L"other", L"СЕТКА"), Acad::eDuplicateKey);
    EXPECT_EQ(add(stack, L"B", L"grid", L"сетка"), Acad::eOk);
}

TEST(CommandStack, namesOfNothingAreRefused)
{
    host::CommandStack stack;
    EXPECT_EQ(add(stack, nullptr, L"x", L"x"), Acad::eInvalidInput);
    EXPECT_EQ(add(stack, L"A", L"", L"x"), Acad::eInvalidInput);
    EXPECT_EQ(add(stack, L"A", L"x", nullptr), Acad::eInvalidInput);
    EXPECT_EQ(add(stack, L"A", L"x", L"x", nullptr), Acad::eInvalidInput);
}

TEST(CommandStack, removedCommandIsGoneAndCanComeBack)
{
    host::CommandStack stack;
    add(stack, L"A", L"grid", L"grid");
    EXPECT_EQ(stack.removeCmd(L"A", L"Grid"), Acad::eOk);
    EXPECT_EQ(stack.removeCmd(L"A", L"grid"), Acad::eKeyNotFound);
    EXPECT_EQ(stack.lookupCmd(L"grid", true, true), nullptr);
    EXPECT_EQ(add(stack, L"A", L"grid", L"grid"), Acad::eOk);
}

TEST(CommandStack, removedGroupTakesItsCommandsAlong)
{
    host::CommandStack stack;
    add(stack, L"A", L"one", L"one");
    add(stack, L"A", L"two", L"two");
    EXPECT_EQ(stack.removeGroup(L"a"), Acad::eOk);
    EXPECT_EQ(stack.removeGroup(L"A"), Acad::eKeyNotFound);
    EXPECT_TRUE(stack.all().empty());
}

TEST(CommandStack, typedNameIsTheLocalOneAndTheNewestGroupGoesFirst)
{
    host::CommandStack stack;
    add(stack, L"A", L"grid", L"raster", first);
    add(stack, L"B", L"net", L"grid", second);
    EXPECT_EQ(stack.findLocal(L"GRID")->functionAddr(), second);
    EXPECT_EQ(stack.findGlobal(L"grid")->functionAddr(), first);
    EXPECT_EQ(stack.lookupCmd(L"net", false, false), nullptr);
    EXPECT_STREQ(stack.lookupCmd(L"net", true, false)->localName(), L"grid");
}

TEST(CommandStack, isFoundInTheRegistry)
{
    EXPECT_EQ(acedRegCmds, &host::commandStack());
    EXPECT_EQ(acrxSysRegistry()->at(L"nothing of that name"), nullptr);
}
}  // namespace
