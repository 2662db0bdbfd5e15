// Tests the behaviour that all controls share, and edits.
#include <gtest/gtest.h>

#include "commctrl.h"
#include "tests/headless/testdialog.h"

using support::TemplateBuilder;

namespace
{
const int label = 1;
const int edit = 2;
const int button = 3;

TemplateBuilder form()
{
    return TemplateBuilder(L"Form", 100, 50)
        .control(label, L"Static", SS_LEFT, 4, 8, 40, 8, L"Step:")
        .control(edit, L"Edit", ES_AUTOHSCROLL | WS_TABSTOP, 50, 8, 40, 12, L"100")
        .control(button, L"Button", BS_PUSHBUTTON | WS_DISABLED, 50, 24, 40, 12, L"Шаг");
}

std::wstring bannerOf(const TestDialog& dialog, int id)
{
    wchar_t text[8] = L"???";
    const auto buffer = reinterpret_cast<WPARAM>(text);
    return dialog.send(id, EM_GETCUEBANNER, buffer, LPARAM(8)) == TRUE ? text : L"none";
}
}  // namespace

TEST(Controls, aTextIsCutToTheBuffer)
{
    const TestDialog dialog(form());
    const struct
    {
        int size;
        int copied;
        LPCWSTR text;
    } rows[] = {
        {4, 3, L"100"}, {3, 2, L"10"}, {1, 0, L""}, {0, 0, L"?"},  // the buffer stays unchanged
        {-1, 0, L"?"},
    };
    for (const auto& row : rows)
    {
        wchar_t text[4] = L"?";
        EXPECT_EQ(GetWindowTextW(dialog.control(edit), text, row.size), row.copied) << row.size;
        EXPECT_STREQ(text, row.text) << row.size;
    }
    EXPECT_EQ(GetWindowTextW(dialog.control(edit), nullptr, 4), 0);
    EXPECT_EQ(GetWindowTextLengthW(dialog.control(edit)), 3);
}

TEST(Controls, everyWindowTakesAText)
{
    const TestDialog dialog(form());
    for (const HWND window : {dialog.window, dialog.control(label), dialog.control(button)})
    {
        EXPECT_TRUE(SetWindowTextW(window, L"Ширина"));
        EXPECT_EQ(textOf(window), L"Ширина");
        EXPECT_TRUE(SetWindowTextW(window, nullptr));
        EXPECT_EQ(textOf(window), L"");
    }
    EXPECT_TRUE(dialog.told.empty());
}

TEST(Controls, anEditTellsThatItsTextHasChanged)
{
    const TestDialog dialog(form());
    EXPECT_TRUE(dialog.told.empty());  // the text of the template is not a change
    EXPECT_TRUE(SetWindowTextW(dialog.control(edit), L"12,5"));
    EXPECT_EQ(textOf(dialog.control(edit)), L"12,5");
    EXPECT_EQ(dialog.told,
              (std::vector<Told>{{WM_COMMAND, edit, EN_CHANGE, dialog.control(edit)}}));
}

TEST(Controls, theBannerOfAnEditIsNotItsText)
{
    const TestDialog dialog(form());
    SetWindowTextW(dialog.control(edit), L"");
    EXPECT_EQ(bannerOf(dialog, edit), L"none");
    EXPECT_EQ(dialog.send(edit, EM_SETCUEBANNER, TRUE, L"Prefix"), TRUE);
    EXPECT_EQ(bannerOf(dialog, edit), L"Prefix");
    EXPECT_EQ(textOf(dialog.control(edit)), L"");
    EXPECT_EQ(dialog.send(edit, EM_SETCUEBANNER, TRUE, L"A longer one"), TRUE);
    EXPECT_EQ(bannerOf(dialog, edit), L"A longe");
    EXPECT_EQ(dialog.send(edit, EM_SETCUEBANNER, TRUE, LPARAM(0)), FALSE);
    EXPECT_EQ(dialog.send(label, EM_SETCUEBANNER, TRUE, L"Prefix"), 0);
}

TEST(Controls, aBannerIsNotCopiedWhereThereIsNoRoom)
{
    const TestDialog dialog(form());
    dialog.send(edit, EM_SETCUEBANNER, FALSE, L"Prefix");
    wchar_t text[2] = L"?";
    dialog.send(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(text), LPARAM(0));
    EXPECT_STREQ(text, L"?");
    dialog.send(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(text), LPARAM(-1));
    EXPECT_STREQ(text, L"?");
    dialog.send(edit, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(text), LPARAM(2));
    EXPECT_STREQ(text, L"P");
}

TEST(Controls, classNamesAreWindowsOwn)
{
    const TestDialog dialog(form());
    wchar_t name[8] = L"";
    EXPECT_EQ(GetClassNameW(dialog.window, name, 8), 6);
    EXPECT_STREQ(name, L"#32770");
    EXPECT_EQ(GetClassNameW(dialog.control(label), name, 4), 3);
    EXPECT_STREQ(name, L"Sta");
}

TEST(Controls, enablingTellsHowItWasBefore)
{
    const TestDialog dialog(form());
    const HWND window = dialog.control(button);
    EXPECT_FALSE(IsWindowEnabled(window));
    EXPECT_TRUE(EnableWindow(window, TRUE));
    EXPECT_TRUE(IsWindowEnabled(window));
    EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & WS_DISABLED, 0U);
    EXPECT_FALSE(EnableWindow(window, FALSE));
    EXPECT_TRUE(EnableWindow(window, FALSE));
    EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & WS_DISABLED, WS_DISABLED);
}

TEST(Controls, aControlIsVisibleOnlyInAVisibleDialog)
{
    const TestDialog dialog(form());
    const HWND window = dialog.control(edit);
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_FALSE(ShowWindow(dialog.window, SW_SHOW));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_TRUE(ShowWindow(window, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(window));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_TRUE(ShowWindow(dialog.window, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(window));
}

TEST(Controls, theFocusGoesOnlyWhereItIsWelcome)
{
    const TestDialog dialog(form());
    const HWND first = dialog.control(edit);
    ASSERT_EQ(GetFocus(), first);
    EXPECT_EQ(SetFocus(dialog.control(button)), nullptr);  // disabled
    EXPECT_EQ(GetFocus(), first);
    EXPECT_EQ(SetFocus(reinterpret_cast<HWND>(UINT_PTR(5))), nullptr);
    EXPECT_EQ(GetFocus(), first);
    EnableWindow(dialog.control(button), TRUE);
    EXPECT_EQ(SetFocus(dialog.control(button)), first);
    EXPECT_EQ(GetFocus(), dialog.control(button));
    EnableWindow(dialog.control(button), FALSE);
    EXPECT_EQ(GetFocus(), nullptr);
    SetFocus(first);
    EXPECT_EQ(SetFocus(nullptr), first);
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST(Controls, noWindowIsRefusedQuietly)
{
    HWND gone = nullptr;
    {
        const TestDialog dialog(form());
        gone = dialog.control(edit);
    }
    for (const HWND window : {HWND(nullptr), gone})
    {
        wchar_t text[4] = L"?";
        RECT place{};
        EXPECT_FALSE(IsWindow(window));
        EXPECT_EQ(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0), 0);
        EXPECT_EQ(GetDlgItem(window, edit), nullptr);
        EXPECT_EQ(GetDlgCtrlID(window), 0);
        EXPECT_EQ(GetParent(window), nullptr);
        EXPECT_EQ(GetWindow(window, GW_CHILD), nullptr);
        EXPECT_EQ(GetWindow(window, GW_HWNDNEXT), nullptr);
        EXPECT_EQ(GetClassNameW(window, text, 4), 0);
        EXPECT_EQ(GetWindowLongW(window, GWL_STYLE), 0);
        EXPECT_FALSE(GetWindowRect(window, &place));
        EXPECT_FALSE(SetWindowTextW(window, L"a"));
        EXPECT_EQ(GetWindowTextW(window, text, 4), 0);
        EXPECT_FALSE(EnableWindow(window, TRUE));
        EXPECT_FALSE(IsWindowEnabled(window));
        EXPECT_FALSE(ShowWindow(window, SW_SHOW));
        EXPECT_FALSE(IsWindowVisible(window));
    }
}

TEST(Controls, aRectangleIsOneOfTheDialog)
{
    const TestDialog dialog(form());
    RECT place{};
    EXPECT_TRUE(GetWindowRect(dialog.control(edit), &place));
    EXPECT_EQ(place.left, 75);
    EXPECT_EQ(place.top, 13);
    EXPECT_EQ(place.right, 135);
    EXPECT_EQ(place.bottom, 33);
    EXPECT_TRUE(GetWindowRect(dialog.window, &place));
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.top, 0);
    EXPECT_EQ(place.right, 150);
    EXPECT_EQ(place.bottom, 81);
}
