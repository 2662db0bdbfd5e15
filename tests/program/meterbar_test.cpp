#include "host/program/meterbar.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
const int smallest = std::numeric_limits<int>::min();
const int largest = std::numeric_limits<int>::max();

struct Case
{
    const char* what;
    host::Meter meter;
    int columns;
    const char* bar;
};

TEST(MeterBar, showsHowFarTheWorkIsInTheRoomThatThereIs)
{
    // clang-format off
    const Case cases[] = {
        {"half", {L"Saving", 0, 100, 50}, 35, "Saving [##########..........] 50%"},
        {"bounds that are not 0 and 100", {L"Saving", -10, 10, 5}, 35, "Saving [###############.....] 75%"},
        {"blanks around the label", {L" Saving ", 0, 4, 1}, 35, "Saving [#####...............] 25%"},
        {"a position below the meter", {L"Saving", 0, 100, -7}, 35, "Saving [....................] 0%"},
        {"a position above the meter", {L"Saving", 0, 100, 107}, 35, "Saving [####################] 100%"},
        {"no length", {L"Saving", 3, 3, 3}, 35, "Saving [####################] 100%"},
        {"the longest meter", {L"M", smallest, largest, 0}, 30, "M [##########..........] 50%"},
        {"at most forty steps", {L"M", 0, 2, 1}, 500, "M [####################....................] 50%"},
        {"one step", {L"Saving", 0, 100, 100}, 16, "Saving [#] 100%"},
        {"no room for a step", {L"Saving", 0, 100, 99}, 15, "99%"},
        {"no columns", {L"Saving", 0, 100, 42}, 0, "42%"},
        {"a label that is not ASCII", {L"\x421\x431\x43E\x440", 0, 2, 2}, 15, "\u0421\u0431\u043E\u0440 [##] 100%"},
    };
    // clang-format on
    for (const Case& row : cases)
    {
        EXPECT_EQ(host::meterBar(row.meter, row.columns), row.bar) << row.what;
    }
}

TEST(MeterBar, leavesTheLastColumnFree)
{
    for (int columns = 16; columns < 100; ++columns)
    {
        EXPECT_LT(host::meterBar({L"Saving", 0, 1, 1}, columns).size(), std::size_t(columns));
    }
}
}  // namespace
