#include <gtest/gtest.h>

#include <memory>

#include "host/headless/windowtree.h"
#include "tests/headless/testdialog.h"

using support::TemplateBuilder;

namespace
{
TemplateBuilder question()
{
    return TemplateBuilder(L"Question", 100, 50)
        .control(10, L"Static", SS_LEFT, 0, 0, 50, 8, L"Sure?")
        .control(11, L"Edit", WS_TABSTOP | WS_DISABLED, 0, 10, 50, 12)
        .control(12, L"Edit", WS_TABSTOP, 0, 24, 50, 12)
        .control(IDOK, L"Button", BS_DEFPUSHBUTTON | WS_TABSTOP, 0, 38, 40, 12, L"OK")
        .control(IDCANCEL, L"Button", WS_TABSTOP, 50, 38, 40, 12, L"Cancel");
}

TestDialog::Answer always(INT_PTR answer)
{
    return [answer](HWND, UINT, WPARAM) { return answer; };
}

TestDialog::Answer destroysOn(UINT unwelcome)
{
    return [unwelcome](HWND dialog, UINT message, WPARAM) -> INT_PTR
    {
        if (message == unwelcome)
        {
            DestroyWindow(dialog);
        }
        return message == WM_INITDIALOG;
    };
}
}  // namespace

TEST(Dialogs, theControlsComeInTheOrderOfTheTemplate)
{
    const TestDialog dialog(question());
    std::vector<int> ids;
    for (HWND next = GetWindow(dialog.window, GW_CHILD); next; next = GetWindow(next, GW_HWNDNEXT))
    {
        ids.push_back(GetDlgCtrlID(next));
        EXPECT_EQ(GetParent(next), dialog.window);
        EXPECT_EQ(GetDlgItem(dialog.window, ids.back()), next);
    }
    EXPECT_EQ(ids, (std::vector<int>{10, 11, 12, IDOK, IDCANCEL}));
    EXPECT_EQ(GetDlgItem(dialog.window, 99), nullptr);
    EXPECT_EQ(GetWindow(dialog.window, GW_HWNDNEXT), nullptr);
    EXPECT_EQ(GetWindow(dialog.control(10), GW_CHILD), nullptr);
}

TEST(Dialogs, theFirstControlThatCanHaveTheFocusGetsIt)
{
    const TestDialog dialog(question());
    EXPECT_EQ(GetFocus(), dialog.control(12));
    EXPECT_EQ(dialog.toldFocus, reinterpret_cast<WPARAM>(dialog.control(12)));
}

TEST(Dialogs, aControlThatWasHiddenOrDisabledAtTheStartDoesNotGetTheFocus)
{
    const TestDialog dialog(question(),
                            [](HWND window, UINT, WPARAM) -> INT_PTR
                            {
                                ShowWindow(GetDlgItem(window, 12), SW_HIDE);
                                EnableWindow(GetDlgItem(window, IDOK), FALSE);
                                return TRUE;
                            });
    EXPECT_EQ(GetFocus(), dialog.control(IDCANCEL));
}

TEST(Dialogs, theProcedureMayGiveTheFocusItself)
{
    const TestDialog dialog(question(),
                            [](HWND window, UINT, WPARAM) -> INT_PTR
                            {
                                SetFocus(GetDlgItem(window, IDCANCEL));
                                return FALSE;
                            });
    EXPECT_EQ(GetFocus(), dialog.control(IDCANCEL));
}

TEST(Dialogs, aDialogIsHiddenUntilItIsInitialised)
{
    for (const bool shown : {false, true})
    {
        bool seen = true;
        const auto look = [&seen](HWND dialog, UINT, WPARAM) -> INT_PTR
        {
            seen = IsWindowVisible(dialog) != FALSE;
            return TRUE;
        };
        const DWORD style = support::plainDialog | (shown ? WS_VISIBLE : 0);
        const TestDialog dialog(TemplateBuilder(L"", 10, 10, style), look);
        EXPECT_FALSE(seen);
        EXPECT_EQ(IsWindowVisible(dialog.window), shown);
    }
}

TEST(Dialogs, aCloseThatIsNotAnsweredIsACancel)
{
    const TestDialog dialog(question(), always(FALSE));
    EXPECT_EQ(SendMessageW(dialog.window, WM_CLOSE, 0, 0), 0);
    const std::vector<Told> expected = {
        {WM_CLOSE, 0, 0, nullptr},
        {WM_COMMAND, IDCANCEL, BN_CLICKED, dialog.control(IDCANCEL)},
    };
    EXPECT_EQ(dialog.told, expected);
}

TEST(Dialogs, aCloseThatIsAnsweredIsNoCancel)
{
    const TestDialog dialog(question(), always(TRUE));
    SendMessageW(dialog.window, WM_CLOSE, 0, 0);
    ASSERT_EQ(dialog.told.size(), 1U);
    EXPECT_EQ(dialog.told[0].message, UINT(WM_CLOSE));
}

TEST(Dialogs, aDialogWithItsCancelDisabledDoesNotClose)
{
    const TestDialog dialog(question(), always(FALSE));
    EnableWindow(dialog.control(IDCANCEL), FALSE);
    SendMessageW(dialog.window, WM_CLOSE, 0, 0);
    EXPECT_EQ(dialog.told.size(), 1U);
}

TEST(Dialogs, aDialogWithoutCancelClosesAllTheSame)
{
    const TestDialog dialog(TemplateBuilder(L"", 10, 10), always(FALSE));
    SendMessageW(dialog.window, WM_CLOSE, 0, 0);
    ASSERT_EQ(dialog.told.size(), 2U);
    EXPECT_EQ(dialog.told[1], (Told{WM_COMMAND, IDCANCEL, BN_CLICKED, nullptr}));
}

TEST(Dialogs, theDefaultButtonIsTheOneWithTheStyle)
{
    const TestDialog dialog(question());
    EXPECT_EQ(SendMessageW(dialog.window, DM_GETDEFID, 0, 0),
              LRESULT(MAKEWPARAM(IDOK, DC_HASDEFID)));
    // The style bits of a label mean something else.
    const TestDialog none(TemplateBuilder(L"", 10, 10).control(5, L"Static", 1, 0, 0, 9, 9));
    EXPECT_EQ(SendMessageW(none.window, DM_GETDEFID, 0, 0), 0);
}

TEST(Dialogs, aDialogThatDestroysItselfIsGoneWithItsControls)
{
    for (const UINT message : {UINT(WM_CLOSE), UINT(WM_COMMAND)})
    {
        const std::size_t before = host::openWindows();
        const TestDialog dialog(question(), destroysOn(message));
        ASSERT_EQ(host::openWindows(), before + 6);
        const HWND button = dialog.control(IDOK);
        SetFocus(button);
        SendMessageW(message == WM_CLOSE ? dialog.window : button,
                     message == WM_CLOSE ? WM_CLOSE : BM_CLICK, 0, 0);
        EXPECT_FALSE(IsWindow(dialog.window));
        EXPECT_FALSE(IsWindow(button));
        EXPECT_EQ(GetFocus(), nullptr);
        EXPECT_EQ(host::openWindows(), before);
    }
}

TEST(Dialogs, anEditWhoseChangeDestroysTheDialogIsLeftAlone)
{
    const TestDialog dialog(question(), destroysOn(WM_COMMAND));
    EXPECT_TRUE(SetWindowTextW(dialog.control(12), L"5"));
    EXPECT_FALSE(IsWindow(dialog.window));
}

TEST(Dialogs, aDialogDestroyedBeforeItIsInitialisedIsNone)
{
    const std::size_t before = host::openWindows();
    const TestDialog other(question());
    const HWND focused = GetFocus();
    const TestDialog dialog(question(), destroysOn(WM_INITDIALOG));
    EXPECT_EQ(dialog.window, nullptr);
    EXPECT_EQ(host::openWindows(), before + 6);
    EXPECT_EQ(GetFocus(), focused);
}

TEST(Dialogs, aDialogMayOpenAnotherAndGoFirst)
{
    std::unique_ptr<TestDialog> inner;
    const TestDialog outer(question(),
                           [&inner](HWND dialog, UINT message, WPARAM) -> INT_PTR
                           {
                               if (message == WM_COMMAND)
                               {
                                   inner = std::make_unique<TestDialog>(question());
                                   DestroyWindow(dialog);
                               }
                               return TRUE;
                           });
    outer.send(IDOK, BM_CLICK);
    EXPECT_FALSE(IsWindow(outer.window));
    ASSERT_TRUE(inner != nullptr);
    EXPECT_EQ(textOf(inner->control(10)), L"Sure?");
}

TEST(Dialogs, aDialogGoesWithItsOwner)
{
    const TestDialog owner(question());
    const TestDialog owned(question(), {}, owner.window);
    const TestDialog stranger(question(), {}, reinterpret_cast<HWND>(UINT_PTR(5)));
    EXPECT_EQ(GetParent(owned.window), owner.window);
    EXPECT_EQ(GetParent(stranger.window), nullptr);
    EXPECT_EQ(GetWindow(owner.control(IDCANCEL), GW_HWNDNEXT), nullptr);
    DestroyWindow(owner.window);
    EXPECT_FALSE(IsWindow(owned.window));
    EXPECT_TRUE(IsWindow(stranger.window));
}

TEST(Dialogs, aHandleIsNeverUsedAgain)
{
    HWND before = nullptr;
    {
        const TestDialog dialog(question());
        before = dialog.window;
        EXPECT_TRUE(DestroyWindow(dialog.window));
        EXPECT_FALSE(DestroyWindow(dialog.window));
    }
    const TestDialog next(question());
    EXPECT_FALSE(IsWindow(before));
    EXPECT_NE(next.window, before);
}

TEST(Dialogs, destroyingNoWindowDestroysNone)
{
    const TestDialog dialog(question());
    EXPECT_FALSE(DestroyWindow(nullptr));
    EXPECT_TRUE(IsWindow(dialog.window));
}

TEST(Dialogs, aControlCanBeDestroyedAlone)
{
    const TestDialog dialog(question());
    const HWND label = dialog.control(10);
    EXPECT_TRUE(DestroyWindow(dialog.control(11)));
    EXPECT_EQ(GetWindow(label, GW_HWNDNEXT), dialog.control(12));
}
