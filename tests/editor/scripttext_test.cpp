#include "host/editor/scripttext.h"

#include <gtest/gtest.h>

#include <sstream>

#include "host/editor/linefrontend.h"
#include "host/editor/scriptreader.h"

namespace
{
using namespace std::string_literals;

struct Row
{
    std::string bytes;
    std::string wanted;
};

// Returns the text, or the reason why there is none.
std::string read(const std::string& bytes)
{
    const host::Result<std::string> text = host::scriptText(bytes, "s.txt");
    return text ? *text : text.failure().line;
}

// Returns the last answer of a reader, or the reason why there is none.
std::string lastOf(host::AnswerReader& reader)
{
    std::wstring last;
    try
    {
        for (host::Answer answer = reader.next({}); answer.kind != host::Answer::Kind::endOfInput;
             answer = reader.next({}))
        {
            last = answer.text;
        }
    }
    catch (const host::UnreadableInput& error)
    {
        return error.what();
    }
    return {last.begin(), last.end()};
}

TEST(ScriptText, isUtf8OrUtf16BehindItsMark)
{
    const Row rows[] = {
        {"", ""},
        {"\xEF\xBB\xBFГ\n", "Г\n"},
        {"\xFF\xFE\x13\x04\r\0\n\0"s, "Г\r\n"},
        {"\xFE\xFF\x04\x13\0\n"s, "Г\n"},
        {"\xFF\xFE\x3D\xD8\x00\xDE"s, "😀"},
        {"\xFF\xFE", ""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(read(row.bytes), row.wanted) << testing::PrintToString(row.bytes);
    }
}

TEST(ScriptText, ofOtherBytesIsRefusedWithItsLine)
{
    const std::string utf8 = ": expected UTF-8, or UTF-16 behind a byte-order mark";
    const std::string utf16 = ": expected whole characters of UTF-16";
    const Row rows[] = {
        {"a\nb\n\xCD\xE0\n", "s.txt: line 3" + utf8},  // Windows' Cyrillic
        {"\xE9", "s.txt: line 1" + utf8},
        {"a\n\xC3", "s.txt: line 2" + utf8},
        {"a\nb\0\n"s, "s.txt: line 2" + utf8},          // UTF-16 without its mark
        {"a\n\xED\xA0\x80\n", "s.txt: line 2" + utf8},  // half a pair
        {"\xFF\xFE"
         "a\0\n\0\0\xD8\n\0"s,
         "s.txt: line 2" + utf16},
        {"\xFF\xFE"
         "a\0\n\0"
         "b"s,
         "s.txt: line 2" + utf16},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(read(row.bytes), row.wanted) << testing::PrintToString(row.bytes);
    }
}

TEST(ScriptText, isTheSameForEveryReader)
{
    const std::string utf8 = ": expected UTF-8, or UTF-16 behind a byte-order mark";
    const Row rows[] = {
        {"\xFF\xFE"
         "a\0\n\0"
         "b\0"s,
         "b"},
        {"a\nb\n", "b"},
        {"a\n\xE9\n", "s.txt: line 2" + utf8},
    };
    for (const Row& row : rows)
    {
        std::istringstream lines(row.bytes);
        host::LineReader lineReader(lines, false, "s.txt");
        EXPECT_EQ(lastOf(lineReader), row.wanted);
        const host::Result<std::string> script = host::scriptText(row.bytes, "s.txt");
        host::ScriptReader scriptReader(script ? *script : "");
        EXPECT_EQ(script ? lastOf(scriptReader) : script.failure().line, row.wanted);
    }
}

TEST(ScriptText, whatAPersonTypesIsTakenAsItIs)
{
    std::istringstream typed("\xE9\nb\n");
    host::LineReader reader(typed, true);
    EXPECT_EQ(reader.next({}).text, L"\uFFFD");
    EXPECT_EQ(reader.next({}).text, L"b");
}

TEST(ScriptText, ofALineWithoutAnEndIsNotWaitedFor)
{
    std::istringstream endless("a\n" + std::string(2 << 20, 'b'));
    host::LineReader reader(endless, false, "s.txt");
    EXPECT_EQ(lastOf(reader), "s.txt: line 2: expected its end");
}
}  // namespace
