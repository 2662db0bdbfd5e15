#include <gtest/gtest.h>

#include "tests/headless/testdialog.h"

using support::TemplateBuilder;

namespace
{
// Two groups of radio buttons, the first begun by a box that has WS_GROUP itself.
TemplateBuilder form()
{
    return TemplateBuilder(L"Form", 100, 100)
        .control(10, L"Button", BS_AUTORADIOBUTTON | WS_TABSTOP, 0, 0, 9, 9)  // before any group
        .control(20, L"Button", BS_GROUPBOX | WS_GROUP, 0, 0, 9, 9)
        .control(21, L"Button", BS_AUTORADIOBUTTON, 0, 0, 9, 9)
        .control(22, L"Edit", ES_AUTOHSCROLL | BS_AUTORADIOBUTTON, 0, 0, 9, 9)
        .control(23, L"Button", BS_AUTORADIOBUTTON, 0, 0, 9, 9)
        .control(24, L"Button", BS_AUTOCHECKBOX, 0, 0, 9, 9)
        .control(30, L"Button", BS_AUTORADIOBUTTON | WS_GROUP, 0, 0, 9, 9)
        .control(31, L"Button", BS_AUTORADIOBUTTON, 0, 0, 9, 9)
        .control(40, L"Button", BS_PUSHBUTTON | WS_GROUP, 0, 0, 9, 9)
        .control(41, L"Button", BS_DEFPUSHBUTTON, 0, 0, 9, 9)
        .control(42, L"Button", BS_OWNERDRAW, 0, 0, 9, 9);
}

std::vector<int> checkedOnes(const TestDialog& dialog)
{
    std::vector<int> ids;
    for (HWND next = GetWindow(dialog.window, GW_CHILD); next; next = GetWindow(next, GW_HWNDNEXT))
    {
        if (SendMessageW(next, BM_GETCHECK, 0, 0) == BST_CHECKED)
        {
            ids.push_back(GetDlgCtrlID(next));
        }
    }
    return ids;
}
}  // namespace

TEST(Buttons, aClickTellsTheDialogAndGivesTheFocus)
{
    const TestDialog dialog(form());
    for (const int id : {10, 21, 24, 30, 40, 41, 42})
    {
        const std::size_t before = dialog.told.size();
        dialog.send(id, BM_CLICK);
        ASSERT_EQ(dialog.told.size(), before + 1) << id;
        EXPECT_EQ(dialog.told.back(), (Told{WM_COMMAND, id, BN_CLICKED, dialog.control(id)}));
        EXPECT_EQ(GetFocus(), dialog.control(id));
    }
}

TEST(Buttons, aGroupBoxAndADisabledButtonDoNothing)
{
    const TestDialog dialog(form());
    const HWND focused = GetFocus();
    for (const int id : {21, 24, 40})
    {
        EnableWindow(dialog.control(id), FALSE);
    }
    for (const int id : {20, 21, 24, 40})
    {
        dialog.send(id, BM_CLICK);
    }
    EXPECT_TRUE(dialog.told.empty());
    EXPECT_TRUE(checkedOnes(dialog).empty());
    EXPECT_EQ(GetFocus(), focused);
}

TEST(Buttons, aCheckBoxTogglesWithEachClick)
{
    const TestDialog dialog(form());
    dialog.send(24, BM_CLICK);
    EXPECT_EQ(checkedOnes(dialog), (std::vector{24}));
    dialog.send(24, BM_CLICK);
    EXPECT_TRUE(checkedOnes(dialog).empty());
}

TEST(Buttons, aRadioButtonUnchecksTheOthersOfItsGroupOnly)
{
    const TestDialog dialog(form());
    const struct
    {
        int clicked;
        std::vector<int> checked;
    } rows[] = {
        {24, {24}},
        {10, {10, 24}},
        {21, {10, 21, 24}},
        {30, {10, 21, 24, 30}},
        {23, {10, 23, 24, 30}},
        {31, {10, 23, 24, 31}},
        {31, {10, 23, 24, 31}},  // stays
        {21, {10, 21, 24, 31}},
    };
    for (const auto& row : rows)
    {
        dialog.send(row.clicked, BM_CLICK);
        EXPECT_EQ(checkedOnes(dialog), row.checked) << row.clicked;
    }
}

TEST(Buttons, theGroupIsInOrderBeforeTheDialogHears)
{
    std::vector<LRESULT> seen;
    const TestDialog dialog(
        form(),
        [&seen](HWND window, UINT message, WPARAM) -> INT_PTR
        {
            if (message == WM_COMMAND)
            {
                const auto check = [window](int id)
                { return SendMessageW(GetDlgItem(window, id), BM_GETCHECK, 0, 0); };
                seen = {check(30), check(31)};
            }
            return TRUE;
        });
    dialog.send(30, BM_SETCHECK, BST_CHECKED);
    dialog.send(31, BM_CLICK);
    EXPECT_EQ(seen, (std::vector<LRESULT>{BST_UNCHECKED, BST_CHECKED}));
}

TEST(Buttons, settingACheckTellsNobodyAndLeavesTheGroup)
{
    const TestDialog dialog(form());
    for (const int id : {21, 23, 24})
    {
        dialog.send(id, BM_SETCHECK, BST_CHECKED);
    }
    EXPECT_EQ(checkedOnes(dialog), (std::vector{21, 23, 24}));
    dialog.send(21, BM_SETCHECK, BST_UNCHECKED);
    EXPECT_EQ(checkedOnes(dialog), (std::vector{23, 24}));
    EXPECT_TRUE(dialog.told.empty());
}

TEST(Buttons, whatCannotBeCheckedIsNot)
{
    const TestDialog dialog(form());
    for (const int id : {20, 22, 40, 41, 42})
    {
        dialog.send(id, BM_SETCHECK, BST_CHECKED);
    }
    EXPECT_TRUE(checkedOnes(dialog).empty());
}

TEST(Buttons, theTabKeyStopsAtTheCheckedRadioButton)
{
    const TestDialog dialog(form());
    const auto stops = [&dialog](int id)
    { return (GetWindowLongW(dialog.control(id), GWL_STYLE) & WS_TABSTOP) != 0; };
    dialog.send(21, BM_SETCHECK, BST_CHECKED);
    EXPECT_TRUE(stops(21));
    dialog.send(23, BM_CLICK);
    EXPECT_FALSE(stops(21));
    EXPECT_TRUE(stops(23));
    dialog.send(24, BM_SETCHECK, BST_CHECKED);
    EXPECT_FALSE(stops(24));  // a check box keeps what it was given
}
