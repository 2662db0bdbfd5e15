#include "host/dxf/codepage.h"

#include <gmock/gmock.h>

#include "host/dxf/error.h"

using namespace host::dxf;

namespace
{
struct Row
{
    const char* version;
    const char* codePage;
    std::string bytes;
    std::wstring text;
};
}  // namespace

TEST(CodePage, textsAreReadAndWrittenInTheFilesCodePage)
{
    const Row rows[] = {
        {"AC1015", "ANSI_1251", "\xD4\xF3\xED\xE4", L"Фунд"},
        {"AC1018", "ANSI_1252", "\xE9 \x80", L"é €"},
        {"AC1015", "ANSI_1250", "\xBE\xF8", L"ľř"},
        {"AC1015", "ANSI_1253", "\xE1", L"α"},
        {"AC1015", "ANSI_874", "\xA1", L"ก"},
        {"AC1015", "ANSI_932", "\x95\x5C\x8E\xA6", L"表示"},  // second byte "\"
        {"AC1015", "ANSI_932", "\x83\x5E", L"タ"},            // second byte "^"
        {"AC1015", "ANSI_936", "\xD6\xD0", L"中"},
        {"AC1015", "ANSI_949", "\xC7\xD1", L"한"},
        {"AC1015", "ANSI_950", "\xA4\xA4", L"中"},
        {"AC1015", "DOS437", "\xE4", L"Σ"},
        {"AC1015", "dos850", "\x81", L"ü"},
        {"AC1015", "DOS866", "\x80\x81", L"АБ"},
        {"AC1015", "ISO8859-5", "\xB0", L"А"},
        {"AC1015", "", "\xE9", L"é"},
        {"AC1021", "ANSI_1251", "\xD0\xA4", L"Ф"},  // UTF-8 all the same
        {"AC1032", "", "\xF0\x9F\x98\x80", L"\U0001F600"},
        {"AC1015", "ANSI_1252", "\\U+0424 \\U+4E2D", L"Ф 中"},
        {"AC1015", "ANSI_1252", "\\U+D83D\\U+DE00", L"\U0001F600"},
        {"AC1015", "ANSI_1252", "a^Jb^Ic^ d", L"a\nb\tc^d"},
        {"AC1015", "ANSI_1252", "C:\\new\\U+zz", L"C:\\new\\U+zz"},
        {"AC1015", "ANSI_1252", "", L""},
    };
    for (const Row& row : rows)
    {
        const CodePage page(*findRelease(row.version), row.codePage);
        EXPECT_EQ(page.decode(row.bytes), row.text) << row.codePage << ' ' << row.bytes;
        EXPECT_EQ(page.encode(row.text), row.bytes) << row.codePage << ' ' << row.bytes;
    }
}

TEST(CodePage, whatReadsAlikeNeedNotBeWrittenAlike)
{
    const Row rows[] = {
        {"AC1027", "", "\\U+0424", L"Ф"},  // an unnecessary escape
        {"AC1027", "", "\\u+0424", L"\\u+0424"},
        {"AC1027", "", "\\U+0424\\U+d83d\\U+de00", L"Ф\U0001F600"},
        {"AC1027", "", "^", L"^"},
        {"AC1027", "", "^j", L"^j"},
        {"AC1027", "", "^@", L"^@"},  // a zero would end the text
        {"AC1027", "", "\\U+0000", L"\\U+0000"},
        {"AC1027", "", "\\U+D83D", L"\\U+D83D"},  // half a character
        {"AC1027", "", "\\U+DC80", L"\\U+DC80"},
        {"AC1027", "", "\\U+D83D\\U+0041", L"\\U+D83DA"},
        {"AC1027", "", "\\U+12", L"\\U+12"},
        {"AC1015", "", "\\M+182A0!", L"\u3042!"},  // the five East Asian pages
        {"AC1015", "", "\\M+2A741", L"\u4F60"},
        {"AC1015", "", "\\M+3B0A1", L"\uAC00"},
        {"AC1015", "", "\\M+48861", L"\uAC00"},
        {"AC1015", "", "\\M+5C4E3", L"\u4F60"},
        {"AC1015", "", "\\M+10041", L"A"},
        {"AC1015", "", "\\M+6C4E3", L"\\M+6C4E3"},
        {"AC1015", "", "\\M+1FFFF", L"\\M+1FFFF"},
        {"AC1015", "", "\\M+1", L"\\M+1"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(CodePage(*findRelease(row.version), row.codePage).decode(row.bytes), row.text)
            << row.bytes;
    }
}

TEST(CodePage, bytesThatMeanNothingComeBackAsTheyWere)
{
    const Row rows[] = {
        {"AC1015", "ANSI_932", "a\x95", L"a\xDC95"},  // cut in the middle
        {"AC1015", "ANSI_949", "\xFF\x41", L"\xDCFF\x41"},
        {"AC1027", "", "\xD0\xA4\xD0", L"Ф\xDCD0"},
        {"AC1027", "", "\xC0\xAF", L"\xDCC0\xDCAF"},            // overlong
        {"AC1027", "", "\xED\xA0\x80", L"\xDCED\xDCA0\xDC80"},  // a surrogate
        {"AC1027", "", "\xFF\xFE\x41", L"\xDCFF\xDCFE\x41"},
    };
    for (const Row& row : rows)
    {
        const CodePage page(*findRelease(row.version), row.codePage);
        EXPECT_EQ(page.encode(page.decode(row.bytes)), row.bytes);
        EXPECT_EQ(page.decode(row.bytes), row.text);
    }
}

TEST(CodePage, whatTheCodePageLacksIsEscaped)
{
    const CodePage western(*findRelease("AC1015"), "ANSI_1252");
    EXPECT_EQ(western.encode(L"Фé"), "\\U+0424\xE9");
    EXPECT_EQ(western.encode(L"\U0001F600"), "\\U+D83D\\U+DE00");
    EXPECT_EQ(western.encode(L"\xD83D\xDE00"), "\\U+D83D\\U+DE00");

    const CodePage unicode(*findRelease("AC1027"), "ANSI_1252");
    EXPECT_EQ(unicode.encode(L"\xD83D\xDE00"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(unicode.encode(L"\xD83D"), "\\U+D83D");
}

TEST(CodePage, anUnknownCodePageIsRefusedUnlessItDoesNotMatter)
{
    for (const char* name : {"ANSI_7", "UTF-16", "no page", "DOS", "ISO8859-99"})
    {
        EXPECT_THAT([&] { CodePage(*findRelease("AC1018"), name); },
                    testing::ThrowsMessage<Error>("expected a known code page, found \"" +
                                                  std::string(name) + "\""));
        EXPECT_EQ(CodePage(*findRelease("AC1021"), name).encode(L"Ф"), "\xD0\xA4");
    }
}
