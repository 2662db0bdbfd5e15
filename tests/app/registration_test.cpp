#include "app/registration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/hostcalls.h"

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

const HINSTANCE module = reinterpret_cast<HINSTANCE>(0x40);

void handler() {}

std::wstring added(const std::wstring& names, int flags, const wchar_t* resources)
{
    std::wostringstream text;
    text << L"addCommand " << names << L" " << flags << L" " << reinterpret_cast<void*>(handler)
         << L" 0 -1 " << resources << L" 0";
    return text.str();
}

TEST(CommandTable, areAddedInTheOrderOfTheTableWithTheResourcesOfTheModule)
{
    const CommandEntry plain = {L"G", L"first", L"erster", 0x41, handler, nullptr, -1};
    const CommandEntry session = {L"G", L"second", nullptr, 0x200000, handler, nullptr, 7};
    const CommandEntry* const table[] = {nullptr, &plain, nullptr, &session};
    HostCalls host;
    host.strings[7] = L"zweiter";

    registerCommands(slotsOf(table), module);
    EXPECT_THAT(host.take(), ElementsAre(added(L"G first erster", 0x41, L"0x40"),
                                         added(L"G second zweiter", 0x200000, L"0")));
    removeCommands(slotsOf(table));
    EXPECT_THAT(host.take(), ElementsAre(L"removeCmd G first", L"removeCmd G second"));
}

TEST(CommandTable, nameFromTheResourcesIsCutToItsBuffer)
{
    const CommandEntry entry = {L"G", L"long", nullptr, 0, handler, nullptr, 7};
    const CommandEntry* const table[] = {&entry};
    HostCalls host;
    host.strings[7] = std::wstring(200, L'x');

    registerCommands(slotsOf(table), module);
    EXPECT_THAT(host.take(), ElementsAre(added(L"G long " + std::wstring(131, L'x'), 0, L"0x40")));
}

TEST(CommandTable, hostWithoutCommandStackGetsNone)
{
    const CommandEntry entry = {L"G", L"first", L"erster", 0, handler, nullptr, -1};
    const CommandEntry* const table[] = {&entry};
    HostCalls host;
    host.registryIsEmpty = true;

    registerCommands(slotsOf(table), module);
    removeCommands(slotsOf(table));
    EXPECT_THAT(host.take(), IsEmpty());
}

std::vector<std::wstring>* initialised = nullptr;

template <int number>
AcRxClass* type()
{
    // Every class but 0 and 3 derives from the one before it.
    static AcRxClass desc(
        number == 0   ? L"base"
        : number == 1 ? L"child"
        : number == 2 ? L"grandchild"
                      : L"other",
        number == 1 || number == 2 ? type<(number > 0 ? number - 1 : 0)>() : nullptr);
    return &desc;
}

template <int number>
void initialise()
{
    initialised->push_back(type<number>()->name());
}

template <int number>
CustomClassEntry entry()
{
    return {type<number>, initialise<number>, false};
}

TEST(CustomClassTable, areDeletedChildrenFirst)
{
    std::vector<std::wstring> order;
    initialised = &order;
    CustomClassEntry base = entry<0>();
    CustomClassEntry child = entry<1>();
    CustomClassEntry grandchild = entry<2>();
    CustomClassEntry other = entry<3>();
    CustomClassEntry* const table[] = {&base, nullptr, &child, &other, &grandchild};
    HostCalls host;

    registerClasses(slotsOf(table));
    EXPECT_THAT(order, ElementsAre(L"base", L"child", L"other", L"grandchild"));
    EXPECT_THAT(host.take(), ElementsAre(L"acrxBuildClassHierarchy"));
    EXPECT_TRUE(base.registered && child.registered && grandchild.registered && other.registered);

    deleteClasses(slotsOf(table));
    EXPECT_THAT(host.take(), ElementsAre(L"deleteAcRxClass grandchild", L"deleteAcRxClass child",
                                         L"deleteAcRxClass base", L"deleteAcRxClass other"));
    EXPECT_FALSE(base.registered || child.registered || grandchild.registered || other.registered);

    deleteClasses(slotsOf(table));
    EXPECT_THAT(host.take(), IsEmpty());
}

TEST(CustomClassTable, withoutAnyTheHostRebuildsNothing)
{
    CustomClassEntry* const table[] = {nullptr, nullptr};
    HostCalls host;
    registerClasses(slotsOf(table));
    deleteClasses(slotsOf(table));
    EXPECT_THAT(host.take(), IsEmpty());
}

int calledFunction = 0;

template <int number>
int function()
{
    calledFunction = number;
    return RTNORM;
}

TEST(LispTable, areNumberedByThePresentEntries)
{
    const LispEntry plain = {L"one", 0, function<1>, false};
    const LispEntry registered = {nullptr, 5, function<2>, true};
    const LispEntry last = {L"three", 0, function<3>, false};
    const LispEntry* const table[] = {nullptr, &plain, nullptr, &registered, &last};
    HostCalls host;
    host.strings[5] = L"two";

    defineFunctions(slotsOf(table), module);
    EXPECT_THAT(host.take(), ElementsAre(L"acedDefun one 0", L"acedDefun two 1", L"acedRegFunc 1",
                                         L"acedDefun three 2"));
    undefineFunctions(slotsOf(table), module);
    EXPECT_THAT(host.take(),
                ElementsAre(L"acedUndef one 0", L"acedUndef two 1", L"acedUndef three 2"));

    for (const auto& [code, called] : {std::pair(0, 1), {1, 2}, {2, 3}, {3, 0}, {-1, 0}})
    {
        calledFunction = 0;
        host.functionCode = code;
        invokeFunction(slotsOf(table));
        EXPECT_EQ(calledFunction, called) << code;
    }
}
}  // namespace
