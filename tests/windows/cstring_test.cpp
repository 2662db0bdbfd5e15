#include <cwchar>

#include <gtest/gtest.h>

#include "afxwin.h"

namespace
{
std::wstring wide(const CString& text)
{
    return static_cast<LPCTSTR>(text);
}

TEST(CStrings, areBuiltFromTextsAndUnits)
{
    EXPECT_EQ(wide(CString()), L"");
    EXPECT_EQ(wide(CString(static_cast<LPCTSTR>(nullptr))), L"");
    EXPECT_EQ(wide(CString(L"abc")), L"abc");
    EXPECT_EQ(wide(CString(L"abc", 2)), L"ab");
    EXPECT_EQ(wide(CString(L'x', 3)), L"xxx");
    CString text;
    text = L"one";
    text = static_cast<LPCTSTR>(text) + 1;  // a part of itself
    EXPECT_EQ(wide(text), L"ne");
    text += static_cast<LPCTSTR>(text) + 1;
    EXPECT_EQ(wide(text), L"nee");
    text = L'z';
    EXPECT_EQ(wide(text), L"z");
    text = static_cast<LPCTSTR>(nullptr);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CStrings, countUnits)
{
    const CString text(L"\xD83D\xDE00z");
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text.GetAt(0), L'\xD83D');
    EXPECT_EQ(text[2], L'z');
    CString other = text;
    other.SetAt(2, L'y');
    EXPECT_EQ(wide(other), L"\xD83D\xDE00y");
    EXPECT_EQ(wide(text), L"\xD83D\xDE00z");
    other.Empty();
    EXPECT_EQ(other.GetLength(), 0);
    EXPECT_STREQ(other.GetString(), L"");
}

TEST(CStrings, areJoined)
{
    CString text(L"a");
    text += L"b";
    text += L'c';
    text += CString(L"d");
    text.Append(L"e");
    text += static_cast<LPCTSTR>(nullptr);
    EXPECT_EQ(wide(text), L"abcde");
    text += text;
    EXPECT_EQ(wide(text), L"abcdeabcde");
    const CString x(L"x");
    EXPECT_EQ(wide(x + L"1" + x + L'2'), L"x1x2");
    EXPECT_EQ(wide(L"1" + x), L"1x");
    EXPECT_EQ(wide(L'2' + x), L"2x");
    EXPECT_EQ(wide(x), L"x");
}

TEST(CStrings, areFormattedAsOnTheModulesPlatform)
{
    CString text(L"X=");
    text.Format(L"%s%.2f", static_cast<LPCTSTR>(text), 1250.5);
    EXPECT_EQ(wide(text), L"X=1250.50");
    text.Format(L"%.0f", 12.5);
    EXPECT_EQ(wide(text), L"13");
}

TEST(CStrings, compareByUnitsOrWithLatinLettersFolded)
{
    const CString text(L"Grid");
    EXPECT_EQ(text.Compare(L"Grid"), 0);
    EXPECT_LT(text.Compare(L"grid"), 0);
    EXPECT_GT(text.Compare(L""), 0);
    EXPECT_EQ(text.CompareNoCase(L"gRID"), 0);
    EXPECT_NE(CString(L"\x0428").CompareNoCase(L"\x0448"), 0);
    EXPECT_TRUE(text == L"Grid");
    EXPECT_TRUE(L"Grid" == text);
    EXPECT_TRUE(text == CString(L"Grid"));
    EXPECT_TRUE(text != L"grid");
    EXPECT_TRUE(L"grid" != text);
    EXPECT_TRUE(text != CString(L"grid"));
    EXPECT_TRUE(text < CString(L"grid"));
    EXPECT_FALSE(text < text);
}

TEST(CStrings, areSearched)
{
    const CString text(L"a=b=c");
    EXPECT_EQ(text.Find(L'='), 1);
    EXPECT_EQ(text.Find(L'=', 2), 3);
    EXPECT_EQ(text.Find(L'=', 4), -1);
    EXPECT_EQ(text.Find(L'=', 9), -1);
    EXPECT_EQ(text.Find(L'=', -1), -1);
    EXPECT_EQ(text.Find(L"b=c"), 2);
    EXPECT_EQ(text.Find(L"b=d"), -1);
    EXPECT_EQ(text.Find(L"", 5), 5);
    EXPECT_EQ(text.Find(L"", 6), -1);
    EXPECT_EQ(text.Find(L"", -1), -1);
    EXPECT_EQ(text.Find(static_cast<LPCTSTR>(nullptr)), -1);
    EXPECT_EQ(text.ReverseFind(L'='), 3);
    EXPECT_EQ(text.ReverseFind(L'#'), -1);
}

TEST(CStrings, areCutToWhatThereIs)
{
    const CString text(L"abcde");
    EXPECT_EQ(wide(text.Left(2)), L"ab");
    EXPECT_EQ(wide(text.Left(9)), L"abcde");
    EXPECT_EQ(wide(text.Left(-1)), L"");
    EXPECT_EQ(wide(text.Right(2)), L"de");
    EXPECT_EQ(wide(text.Right(9)), L"abcde");
    EXPECT_EQ(wide(text.Right(-1)), L"");
    EXPECT_EQ(wide(text.Mid(2)), L"cde");
    EXPECT_EQ(wide(text.Mid(5)), L"");
    EXPECT_EQ(wide(text.Mid(9)), L"");
    EXPECT_EQ(wide(text.Mid(-1)), L"abcde");
    EXPECT_EQ(wide(text.Mid(1, 3)), L"bcd");
    EXPECT_EQ(wide(text.Mid(3, 9)), L"de");
    EXPECT_EQ(wide(text.Mid(3, -1)), L"");
}

TEST(CStrings, areTrimmed)
{
    struct Row
    {
        const wchar_t* text;
        const wchar_t* both;
        const wchar_t* left;
        const wchar_t* right;
    };
    const Row rows[] = {
        {L" \t a b\r\n", L"a b", L"a b\r\n", L" \t a b"},
        {L"\xA0x\x3000", L"x", L"x\x3000", L"\xA0x"},  // blanks outside ASCII
        {L"x", L"x", L"x", L"x"},
        {L" \n", L"", L"", L""},
        {L"", L"", L"", L""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(wide(CString(row.text).Trim()), row.both);
        EXPECT_EQ(wide(CString(row.text).TrimLeft()), row.left);
        EXPECT_EQ(wide(CString(row.text).TrimRight()), row.right);
    }
    EXPECT_EQ(wide(CString(L"\t \na \t").Trim(L" \t")), L"\na");
    EXPECT_EQ(wide(CString(L"xxaxx").TrimLeft(L'x')), L"axx");
    EXPECT_EQ(wide(CString(L"xxaxx").TrimRight(L'x')), L"xxa");
    EXPECT_EQ(wide(CString(L"xxaxx").Trim(L'x')), L"a");
    EXPECT_EQ(wide(CString(L" a ").Trim(L"")), L" a ");
}

TEST(CStrings, haveTheirPlacesReplaced)
{
    CString text(L"1,2,3");
    EXPECT_EQ(text.Replace(L',', L'.'), 2);
    EXPECT_EQ(wide(text), L"1.2.3");
    EXPECT_EQ(text.Replace(L".", L".."), 2);  // what was put in is not looked at again
    EXPECT_EQ(wide(text), L"1..2..3");
    EXPECT_EQ(text.Replace(L"..", static_cast<LPCTSTR>(nullptr)), 2);
    EXPECT_EQ(wide(text), L"123");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L"9", L"x"), 0);
    EXPECT_EQ(text.Replace(L'1', L'1'), 0);
    EXPECT_EQ(wide(text), L"123");
}

TEST(CStrings, lendTheirBuffer)
{
    CString text(L"ab");
    std::wcscpy(text.GetBuffer(10), L"longer one");
    text.ReleaseBuffer();
    EXPECT_EQ(wide(text), L"longer one");
    text.GetBuffer()[0] = L'L';
    text.ReleaseBuffer(6);
    EXPECT_EQ(wide(text), L"Longer");
    text.GetBuffer()[0] = L'\0';
    text.ReleaseBuffer();
    EXPECT_TRUE(text.IsEmpty());
}
}  // namespace
