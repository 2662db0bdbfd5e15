#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "afxwin.h"
#include "host/windows/text.h"
#include "tests/support/fulldisk.h"

namespace
{
using namespace std::string_literals;

class Streams : public testing::Test
{
protected:
    std::filesystem::path m_file =
        std::filesystem::path(testing::TempDir()) / ("streams." + std::to_string(getpid()));
    std::wstring m_path = host::fromNativePath(m_file.string());

    ~Streams() override { std::filesystem::remove(m_file); }

    void keep(const std::string& bytes) { std::ofstream(m_file, std::ios::binary) << bytes; }
    std::string kept() const
    {
        std::ifstream file(m_file, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::wstring read(const wchar_t* mode) const
    {
        FILE* file = _wfopen(m_path.c_str(), mode);
        if (file == nullptr)
        {
            return L"cannot be opened";
        }
        std::wstring text;
        for (wint_t unit = fgetwc(file); unit != WEOF; unit = fgetwc(file))
        {
            text += wchar_t(unit);
        }
        fclose(file);
        return text;
    }
    std::string written(const wchar_t* mode, const wchar_t* text) const
    {
        FILE* file = _wfopen(m_path.c_str(), mode);
        EXPECT_EQ(fwprintf(file, L"%s", text), int(std::wcslen(text)));
        EXPECT_EQ(fclose(file), 0);
        return kept();
    }
};

TEST_F(Streams, theByteOrderMarkDecidesTheEncodingAndIsNotRead)
{
    struct Row
    {
        std::string bytes;
        const wchar_t* mode;
        std::wstring text;
    };
    const Row rows[] = {
        {"\xD0\xA8", L"r, ccs=UTF-8", L"\x0428"},
        {"\xEF\xBB\xBF\xD0\xA8", L"r, ccs=UTF-8", L"\x0428"},
        {"\xFF\xFE\x28\x04"s, L"r, ccs=UTF-8", L"\x0428"},
        {"\x28\x04"s, L"r, ccs=UTF-16LE", L"\x0428"},
        {"\xEF\xBB\xBF\xD0\xA8", L"r, ccs=UTF-16LE", L"\x0428"},
        {"\xFF\xFE\x28\x04"s, L"r, ccs=UTF-16LE", L"\x0428"},
        {"\x28\x04"s, L"r, ccs=UNICODE", L"\x0428"},                  // assumed
        {"\xFE\xFF\x04\x28"s, L"r, ccs=UTF-8", L"cannot be opened"},  // big-endian; assumed
        {"\xEF\xBB\xBF", L"r, ccs=UTF-8", L""},
        {"\xFF\xFE", L"r, ccs=UTF-8", L""},
        {"\xEF\xBB", L"r, ccs=UTF-8", L"\xFFFD\xFFFD"},         // a mark cut short
        {"\xFF\xFE\x28\x04\x0A"s, L"r, ccs=UTF-8", L"\x0428"},  // half a unit at the end
        {"a\xEF\xBB\xBF", L"r, ccs=UTF-8", L"a\xFEFF"},         // no mark any more
        {"", L"r, ccs=UTF-8", L""},
        {"x", L"r,ccs=UTF-8", L"x"},
        {"x", L"r , ccs = utf-8", L"x"},
        {"x", L"rt, ccs=UTF-8", L"x"},
    };
    for (const Row& row : rows)
    {
        keep(row.bytes);
        EXPECT_EQ(read(row.mode), row.text) << testing::PrintToString(row.bytes);
    }
}

TEST_F(Streams, linesEndInOneLineFeedAndTheTextAtControlZ)
{
    struct Row
    {
        std::string bytes;
        std::wstring text;
    };
    const Row rows[] = {
        {"a\r\nb\r\n", L"a\nb\n"},
        {"a\nb", L"a\nb"},
        {"a\rb", L"a\rb"},
        {"\r\r\n\r", L"\r\n\r"},
        {"a\x1A"
         "b\r\n",
         L"a"},
        {"a\r\x1A\n", L"a\r"},
        {"a\0b"s, L"a\0b"s},
    };
    for (const Row& row : rows)
    {
        keep(row.bytes);
        EXPECT_EQ(read(L"r, ccs=UTF-8"), row.text) << testing::PrintToString(row.bytes);
        EXPECT_EQ(read(L"r"), row.text) << testing::PrintToString(row.bytes);
        std::string wide;
        for (const char byte : row.bytes)
        {
            wide += byte;
            wide += '\0';
        }
        keep("\xFF\xFE" + wide);
        EXPECT_EQ(read(L"r, ccs=UTF-8"), row.text) << testing::PrintToString(row.bytes);
    }
}

TEST_F(Streams, whatUtf8CannotHoldIsReplacedAndWhatUnitsCannotHoldIsSplit)
{
    keep("X\xFFY\xE2\x82\n\xF0\x9F\x98\x80\n");
    EXPECT_EQ(read(L"r, ccs=UTF-8"), L"X\xFFFDY\xFFFD\xFFFD\n\xD83D\xDE00\n");
    keep("\xFF\xFE\x3D\xD8\x0A\x00"s);
    EXPECT_EQ(read(L"r, ccs=UTF-8"), L"\xD83D\n");  // half a pair comes as it is
    keep(
        "a\xEF\xBF\xBF"
        "b");
    EXPECT_EQ(read(L"r, ccs=UTF-8"), L"a");  // U+FFFF has the number of WEOF there
}

TEST_F(Streams, withoutAnEncodingAUnitIsAByte)
{
    keep("\xEF\xBB\xBFX\xFF");
    EXPECT_EQ(read(L"r"), L"\xEF\xBB\xBFX\xFF");
}

TEST_F(Streams, binaryStreamsAreAsTheFileIs)
{
    keep(
        "a\r\n\x1A"
        "b");
    EXPECT_EQ(read(L"rb"),
              L"a\r\n\x1A"
              L"b");
    EXPECT_EQ(written(L"wb", L"a\n"), "a\n");
    EXPECT_EQ(written(L"ab", L"b\n"), "a\nb\n");
}

TEST_F(Streams, textIsWrittenInBytesWithBothLineEnds)
{
    struct Row
    {
        const wchar_t* text;
        std::string bytes;
    };
    const Row rows[] = {
        {L"Color=12\n", "Color=12\r\n"},
        {L"\n\n", "\r\n\r\n"},
        {L"a\r\n", "a\r\r\n"},
        {L"\x7F\x80\xE9\xFF", "\x7F\x80\xE9\xFF"},
        {L"\x0100", "?"},
        {L"X=\x0428\n", "X=?\r\n"},
        {L"\xD83D\xDE00", "??"},  // one for each unit
        {L"", ""},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(written(L"w", row.text), row.bytes) << row.bytes;
    }
    keep("old\n");
    EXPECT_EQ(written(L"a", L"new\n"), "old\nnew\r\n");
}

TEST_F(Streams, longTextIsWrittenWhole)
{
    const std::wstring text(100000, L'\n');
    EXPECT_EQ(written(L"w", text.c_str()).size(), 200000u);
    EXPECT_EQ(read(L"r, ccs=UTF-8"), text);
}

TEST_F(Streams, onlyAsciiComesBackFromAnOptionsFile)
{
    written(L"w", L"textXScribe=X\xE9\x0428=\n");
    EXPECT_EQ(read(L"r, ccs=UTF-8"), L"textXScribe=X\xFFFD?=\n");
}

TEST_F(Streams, theEndIsSeenOnlyWhenItIsReached)
{
    keep("\xD0\xA8\r");
    FILE* file = _wfopen(m_path.c_str(), L"r, ccs=UTF-8");
    EXPECT_EQ(fgetwc(file), 0x0428u);
    EXPECT_EQ(fgetwc(file), L'\r');
    EXPECT_FALSE(feof(file));
    EXPECT_EQ(fgetwc(file), WEOF);
    EXPECT_TRUE(feof(file));
    EXPECT_FALSE(ferror(file));
    EXPECT_EQ(fgetwc(file), WEOF);
    fclose(file);
}

TEST_F(Streams, aStreamDoesNotInheritTheEncodingOfOneThatWasClosed)
{
    keep("ab");
    for (int i = 0; i < 3; ++i)
    {
        fclose(_wfopen(m_path.c_str(), L"r, ccs=UTF-8"));
        EXPECT_EQ(read(L"r"), L"ab");
    }
}

TEST_F(Streams, whatCannotBeOpenedIsNull)
{
    std::filesystem::remove(m_file);
    EXPECT_EQ(_wfopen(m_path.c_str(), L"r, ccs=UTF-8"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(_wfopen((m_path + L"\\under").c_str(), L"w"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(_wfopen(L"", L"r, ccs=UTF-8"), nullptr);
    EXPECT_EQ(_wfopen(L"", L"w"), nullptr);
    const std::wstring folder = host::fromNativePath(testing::TempDir());
    EXPECT_EQ(_wfopen(folder.c_str(), L"r, ccs=UTF-8"), nullptr);
    EXPECT_EQ(_wfopen(folder.c_str(), L"w"), nullptr);
    keep("x");
    const wchar_t* modes[] = {
        L"", L"x", L"r+", L"w, ccs=UTF-8", L"rb, ccs=UTF-8", L"r, ccs=UTF-16BE", L"r, ccs="};
    for (const wchar_t* mode : modes)
    {
        errno = 0;
        EXPECT_EQ(_wfopen(m_path.c_str(), mode), nullptr) << testing::PrintToString(mode);
        EXPECT_EQ(errno, EINVAL);
    }
    EXPECT_EQ(kept(), "x");
}

TEST_F(Streams, aDeviceOrAPipeIsNotOpened)
{
    std::filesystem::remove(m_file);
    ASSERT_EQ(mkfifo(m_file.c_str(), 0600), 0);
    const std::wstring paths[] = {m_path, L"\\dev\\zero", L"\\dev\\full", L"\\dev\\ptmx"};
    for (const std::wstring& path : paths)
    {
        for (const wchar_t* mode : {L"r", L"r, ccs=UTF-8"})
        {
            EXPECT_EQ(_wfopen(path.c_str(), mode), nullptr) << testing::PrintToString(path);
        }
    }
    EXPECT_EQ(_wfopen(m_path.c_str(), L"w"), nullptr) << "nobody reads from the pipe";
    for (const wchar_t* mode : {L"w", L"a"})
    {
        EXPECT_EQ(_wfopen(L"\\dev\\null", mode), nullptr) << "the text would be lost";
    }
    std::filesystem::remove(m_file);
    keep("x");
    std::filesystem::resize_file(m_file, 1ull << 40);  // takes no room on the disk
    EXPECT_EQ(_wfopen(m_path.c_str(), L"r, ccs=UTF-8"), nullptr);
}

TEST_F(Streams, aFullDiskIsToldWhenTheStreamCloses)
{
    FILE* file = _wfopen(m_path.c_str(), L"w");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(fwprintf(file, L"%s", L"x"), 1);
    const tests::FullDisk disk;
    EXPECT_EQ(fclose(file), EOF);
}

TEST_F(Streams, writingToAStreamForReadingFails)
{
    keep("x");
    FILE* file = _wfopen(m_path.c_str(), L"r, ccs=UTF-8");
    EXPECT_LT(fwprintf(file, L"%d", 1), 0);
    fclose(file);
}

TEST(WideCharacters, areOneByteUpToTwoHundredFiftyFive)
{
    char byte = 0;
    EXPECT_EQ(wctomb(&byte, L'A'), 1);
    EXPECT_EQ(byte, 'A');
    EXPECT_EQ(wctomb(&byte, L'\xFF'), 1);
    EXPECT_EQ(byte, '\xFF');
    EXPECT_EQ(wctomb(&byte, L'\0'), 1);
    errno = 0;
    EXPECT_EQ(wctomb(&byte, L'\x0100'), -1);
    EXPECT_EQ(errno, EILSEQ);
    EXPECT_EQ(wctomb(nullptr, L'A'), 0);
}

// The platform's form for numbers is used as it is.
TEST(WideCharacters, swprintfCounts)
{
    wchar_t text[8];
    EXPECT_EQ(std::swprintf(text, 8, L"%d", 42), 2);
    EXPECT_STREQ(text, L"42");
}
}  // namespace
