#include <string>

#include <gtest/gtest.h>

#include "host/windows/messagebox.h"
#include "host/windows/modules.h"
#include "windows.h"

namespace
{
TEST(WindowsCalls, localesHaveTheirNames)
{
    struct Row
    {
        LCID id;
        int size;
        int result;
        const wchar_t* name;
    };
    const Row rows[] = {
        {0x0409, LOCALE_NAME_MAX_LENGTH, 6, L"en-US"},
        {0x0419, LOCALE_NAME_MAX_LENGTH, 6, L"ru-RU"},
        {0x0407, 6, 6, L"de-DE"},
        {0x0419, 5, 0, L"before"},  // no room for the end
        {0x0419, 0, 6, L"before"},  // asks for the length
        {0x1234, LOCALE_NAME_MAX_LENGTH, 0, L"before"},
        {0x0000, LOCALE_NAME_MAX_LENGTH, 0, L"before"},
    };
    for (const Row& row : rows)
    {
        wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"before";
        EXPECT_EQ(LCIDToLocaleName(row.id, name, row.size, 0), row.result);
        EXPECT_STREQ(name, row.name);
    }
    SetLastError(0);
    LCIDToLocaleName(0x1234, nullptr, 0, 0);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INVALID_PARAMETER));
}

TEST(WindowsCalls, theProgramsFileIsNamedWholeOrCut)
{
    const std::wstring whole = []
    {
        wchar_t path[1000];
        const DWORD length = GetModuleFileNameW(nullptr, path, 1000);
        return std::wstring(path, length);
    }();
    EXPECT_EQ(whole[0], L'\\');
    EXPECT_EQ(whole.find(L'/'), std::wstring::npos);
    const DWORD length = DWORD(whole.size());

    wchar_t path[1000];
    EXPECT_EQ(GetModuleFileNameW(host::programInstance(), path, length + 1), length);
    EXPECT_EQ(path, whole);
    EXPECT_EQ(GetLastError(), 0u);
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, length), length);
    EXPECT_EQ(path, whole.substr(0, length - 1));
    EXPECT_EQ(GetLastError(), DWORD(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 1), 1u);
    EXPECT_STREQ(path, L"");
    EXPECT_EQ(GetModuleFileNameW(nullptr, path, 0), 0u);
}

TEST(WindowsCalls, anUnknownModuleHasNoFile)
{
    wchar_t path[10];
    EXPECT_EQ(GetModuleFileNameW(reinterpret_cast<HMODULE>(8), path, 10), 0u);
    EXPECT_EQ(GetLastError(), DWORD(ERROR_MOD_NOT_FOUND));
}

TEST(WindowsCalls, aModuleWithoutAStringTableHasNoTexts)
{
    wchar_t text[132] = L"before";
    EXPECT_EQ(LoadStringW(host::programInstance(), 1, text, 132), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(LoadStringW(nullptr, 1, nullptr, 0), 0);
}

TEST(WindowsCalls, aMessageBoxIsAnsweredByWhoeverWasInstalled)
{
    std::wstring asked;
    host::setMessageBoxHandler(
        [&](const host::ShownBox& box)
        {
            asked = box.caption + L": " + box.text + L" " + std::to_wstring(box.type);
            return IDNO;
        });
    EXPECT_EQ(MessageBoxW(nullptr, L"Proceed?", L"Attention", MB_YESNO | MB_ICONQUESTION), IDNO);
    EXPECT_EQ(asked, L"Attention: Proceed? 36");
    EXPECT_EQ(MessageBoxW(nullptr, nullptr, nullptr, MB_OK), IDNO);
    EXPECT_EQ(asked, L"Error:  0");
    host::setMessageBoxHandler(nullptr);
    EXPECT_EQ(MessageBoxW(nullptr, L"Proceed?", L"Attention", MB_YESNO), 0);
}
}  // namespace
