#include "host/windows/text.h"

#include <gtest/gtest.h>

namespace
{
struct Row
{
    std::string_view bytes;
    std::wstring_view units;
};

TEST(Text, isTheSameInUtf8AndInUnits)
{
    const Row rows[] = {
        {"", L""},
        {"X=", L"X="},
        {"\x7F\xC2\x80", L"\x7F\x80"},
        {"\xD0\xA8\xD0\xB0\xD0\xB3", L"\x0428\x0430\x0433"},
        {"\xDF\xBF\xE0\xA0\x80", L"\x07FF\x0800"},
        {"\xED\x9F\xBF\xEE\x80\x80", L"\xD7FF\xE000"},
        {"\xEF\xBF\xBF", L"\xFFFF"},
        {"\xF0\x90\x80\x80", L"\xD800\xDC00"},  // two units from here on
        {"\xF0\x9F\x98\x80", L"\xD83D\xDE00"},
        {"\xF4\x8F\xBF\xBF", L"\xDBFF\xDFFF"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(host::fromUtf8(row.bytes), row.units) << row.bytes;
        EXPECT_EQ(host::toUtf8(row.units), row.bytes) << row.bytes;
    }
}

TEST(Text, eachByteThatIsNoUtf8IsOneReplacement)
{
    const Row rows[] = {
        {"a\x80z", L"a\xFFFDz"},
        {"\xFF\xFE", L"\xFFFD\xFFFD"},
        {"\xC0\x80", L"\xFFFD\xFFFD"},            // NUL, written too long
        {"\xE0\x9F\xBF", L"\xFFFD\xFFFD\xFFFD"},  // written too long
        {"\xF0\x8F\xBF\xBF", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},            // a surrogate
        {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},  // above U+10FFFF
        {"\xF8\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"},
        {"\xF5", L"\xFFFD"},
        {"\xE2\x82z", L"\xFFFD\xFFFDz"},  // cut short
        {"\xE2\x82", L"\xFFFD\xFFFD"},
        {"\xD0", L"\xFFFD"},
        {"\xD0\xD0\xA8", L"\xFFFD\x0428"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(host::fromUtf8(row.bytes), row.units) << testing::PrintToString(row.bytes);
    }
}

TEST(Text, whatIsNoCharacterIsReplacedInUtf8)
{
    const std::wstring_view texts[] = {L"\xD83D", L"\xDE00"};
    for (const std::wstring_view text : texts)
    {
        EXPECT_EQ(host::toUtf8(text), "\xEF\xBF\xBD");
    }
    EXPECT_EQ(host::toUtf8(L"\xDE00\xD83Dz"), "\xEF\xBF\xBD\xEF\xBF\xBDz");
    EXPECT_EQ(host::toUtf8(L"\xD83D\xD83D\xDE00"), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(Text, pathsHaveBackslashesOnTheModulesSide)
{
    EXPECT_EQ(host::toNativePath(L"\\home\\\x0448/netrax.arx"),
              host::pathOf("/home/\xD1\x88/netrax.arx"));
    EXPECT_EQ(host::fromNativePath("/home/\xD1\x88/netrax.arx"), L"\\home\\\x0448\\netrax.arx");
}
}  // namespace
