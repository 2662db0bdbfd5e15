#include "host/text/numbers.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace
{
const std::optional<double> nothing;

struct Row
{
    std::string text;
    std::optional<double> inFile;
    std::optional<double> typed;
};

TEST(Numbers, areTheWholeText)
{
    const Row rows[] = {
        {"12.5", 12.5, 12.5},        {" \t-3 ", -3, -3},
        {"1e3", 1000, 1000},         {".5", .5, .5},
        {"+.5", nothing, .5},  // a file writes no plus
        {"+-5", nothing, nothing},   {"1 2", nothing, nothing},
        {"12mm", nothing, nothing},  {"0x10", nothing, nothing},
        {"1e999", nothing, nothing}, {"", nothing, nothing},
        {" ", nothing, nothing},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(host::readNumber<double>(row.text), row.inFile) << row.text;
        EXPECT_EQ(host::parseReal(std::wstring(row.text.begin(), row.text.end())), row.typed)
            << row.text;
    }
}

TEST(Numbers, thatTheTypeCannotHoldAreNone)
{
    EXPECT_EQ(host::readNumber<std::int16_t>("32767"), 32767);
    EXPECT_EQ(host::readNumber<std::int16_t>("32768"), std::nullopt);
    EXPECT_EQ(host::readNumber<std::uint64_t>("FFFFFFFFFFFFFFFF", 16), UINT64_MAX);
    EXPECT_EQ(host::readNumber<std::uint64_t>("10000000000000000", 16), std::nullopt);
    EXPECT_EQ(host::parseInteger(L"2147483648"), std::nullopt);
}

TEST(Trimmed, isTheTextWithoutTheBlanksAroundIt)
{
    EXPECT_EQ(host::trimmed(std::string_view(" a b\t")), "a b");
    EXPECT_EQ(host::trimmed(std::wstring_view(L" \t")), L"");
}
}  // namespace
