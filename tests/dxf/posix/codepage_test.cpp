// Tests the code pages that Windows reads in its own way (docs/windows.md).
#include "host/dxf/codepage.h"

#include <gtest/gtest.h>

using namespace host::dxf;

TEST(CodePage, aVietnameseLetterAndItsAccentAreOneLetter)
{
    const CodePage page(*findRelease("AC1015"), "ANSI_1258");
    EXPECT_EQ(page.decode("a\xD2"), L"ả");
    EXPECT_EQ(page.encode(L"ả"), "a\xD2");
}

TEST(CodePage, aByteThatTheCodePageLeavesOutIsKeptAsSuch)
{
    const CodePage western(*findRelease("AC1015"), "ANSI_1252");
    EXPECT_EQ(western.decode("a\x81z"), L"a\xDC81z");
    EXPECT_EQ(western.encode(L"a\xDC81z"), "a\x81z");
    const CodePage vietnamese(*findRelease("AC1015"), "ANSI_1258");
    EXPECT_EQ(vietnamese.decode("a\x8A"), L"a\xDC8A");
    EXPECT_EQ(vietnamese.encode(L"a\xDC8A"), "a\x8A");
}

// Wide characters of 16 bits cannot hold them.
TEST(CodePage, whatIsNoCharacterAtAllIsReplaced)
{
    const CodePage unicode(*findRelease("AC1027"), "ANSI_1252");
    EXPECT_EQ(unicode.encode(std::wstring(1, wchar_t(0x110000))), "\xEF\xBF\xBD");
    EXPECT_EQ(unicode.encode(std::wstring(1, wchar_t(-1))), "\xEF\xBF\xBD");
}
