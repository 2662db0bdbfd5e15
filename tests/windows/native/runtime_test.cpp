// Windows' C runtime where it differs from what the emulated one does; docs/windows.md has the
// table.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>

#include "afxwin.h"
#include "host/windows/modules.h"
#include "tests/windows/format.h"

namespace
{
std::wstring readAs(const wchar_t* mode, const std::string& bytes)
{
    const auto path = std::filesystem::temp_directory_path() / "runtime-test.txt";
    std::ofstream(path, std::ios::binary) << bytes;
    FILE* file = _wfopen(path.c_str(), mode);
    std::wstring text;
    for (wint_t unit = fgetwc(file); unit != WEOF; unit = fgetwc(file))
    {
        text += wchar_t(unit);
    }
    fclose(file);
    return text;
}

// The same on both: what the numbers of the grid and of its options are written and read by.
TEST(Runtime, writesTheNumbersOfTheGridAsElsewhere)
{
    struct Row
    {
        const wchar_t* format;
        double value;
        const wchar_t* text;
    };
    const Row rows[] = {
        {L"%.0f", 2.5, L"3"},
        {L"%.0f", 0.5, L"1"},
        {L"%.2f", 0.125, L"0.13"},
        {L"%.2f", -0.125, L"-0.13"},
        {L"%.4f", 100, L"100.0000"},
        {L"%.8f", 1250.0000005, L"1250.00000050"},
        {L"%.0f", 1e15, L"1000000000000000"},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(format(row.format, row.value), row.text);
    }
    EXPECT_EQ(format(L"%s%S%d", L"X=", "narrow", 7), L"X=narrow7");
    EXPECT_EQ(_wtof(L" -12.5e1x"), -125);
    EXPECT_EQ(_wtoi(L" 42x"), 42);
}

TEST(Runtime, readsAnOptionsFileAsElsewhere)
{
    EXPECT_EQ(readAs(L"r, ccs=UTF-8",
                     "\xEF\xBB\xBF"
                     "a=\xD0\xAF\r\nb\x1A"
                     "c"),
              L"a=\x042F\nb");
    EXPECT_EQ(readAs(L"r, ccs=UTF-8", "a=1\r\n"), L"a=1\n");
}

TEST(Runtime, writesMoreThanSeventeenDigits)
{
    EXPECT_EQ(format(L"%.9f", 123456789.12345679), L"123456789.123456791");
}

TEST(Runtime, takesALineFeedForABlankBeforeANumber)
{
    EXPECT_EQ(_wtof(L"\n7"), 7);
}

TEST(Runtime, namesWhatIsNoNumberInItsOwnWay)
{
    EXPECT_EQ(format(L"%.2f", std::numeric_limits<double>::infinity()), L"1.#J");
}

TEST(Runtime, namesEveryLocaleThatTheSystemKnows)
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
    EXPECT_EQ(LCIDToLocaleName(0x0419, name, LOCALE_NAME_MAX_LENGTH, 0), 6);
    EXPECT_STREQ(name, L"ru-RU");
    EXPECT_EQ(LCIDToLocaleName(0x0409, name, LOCALE_NAME_MAX_LENGTH, 0), 6);
    EXPECT_STREQ(name, L"en-US");
}

TEST(Runtime, namesTheProgramWithItsDrive)
{
    const std::wstring path = host::modulePath(nullptr).native();
    EXPECT_EQ(path.substr(1, 2), L":\\");
    EXPECT_EQ(host::modulePath(nullptr).filename(), L"unit_tests.exe");
}
}  // namespace
