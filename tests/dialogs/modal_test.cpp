// A modal dialog from its template to its end.
#include <gtest/gtest.h>

#include "acedads.h"
#include "host/dialogs/wnd.h"
#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

using support::ResourceFile;
using support::TemplateBuilder;

namespace
{
using Lines = std::vector<std::string>;

// Returns the printed text. Lines that are left over or missing fail the test.
std::string show(CDialog& dialog, INT_PTR& result, const Lines& lines)
{
    support::Session session;
    const std::string said = session.run([&] { result = dialog.DoModal(); }, lines);
    EXPECT_EQ(session.questions.size(), lines.size()) << said;
    return said;
}

INT_PTR resultOf(CDialog& dialog, const Lines& lines)
{
    INT_PTR result = 0;
    show(dialog, result, lines);
    return result;
}

TemplateBuilder withoutDefaultButton()
{
    return TemplateBuilder(L"Plain", 60, 20).control(IDOK, L"Button", 0, 0, 0, 40, 12, L"OK");
}

struct Way
{
    const char* line;
    INT_PTR result;
};

const Way waysOut[] = {
    {"", IDOK},
    {"  ", IDOK},
    {"click 1", IDOK},
    {"^C", IDCANCEL},
    {"click 2", IDCANCEL},
    {"close", IDCANCEL},
    {" CLOSE ", IDCANCEL},
};

TEST(ModalDialogs, endAsTheUserEndsThem)
{
    for (const Way& way : waysOut)
    {
        Panel panel;
        INT_PTR result = 0;
        const std::string said = show(panel, result, {way.line});
        const std::string closed = way.result == IDOK ? "ok" : "cancel";
        EXPECT_EQ(result, way.result) << way.line;
        EXPECT_EQ(said, "[dialog] Panel\n[dialog closed] " + closed + "\n") << way.line;
    }
}

TEST(ModalDialogs, theEndOfTheInputIsACancel)
{
    Panel panel;
    INT_PTR result = 0;
    support::Session session;
    const std::string said = session.run([&] { result = panel.DoModal(); }, {"show"});
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_TRUE(said.ends_with("\n[dialog closed] cancel\n")) << said;
    EXPECT_TRUE(session.endedInsideCommand);
    EXPECT_EQ(session.reports, Lines{"the input ended in the middle of BODY"});
}

TEST(ModalDialogs, aDialogThatNeverClosesIsStoppedAtTheEndOfTheInput)
{
    Panel panel;
    panel.mayCancel = [] { return false; };
    EXPECT_EXIT(resultOf(panel, {}), testing::ExitedWithCode(1), "BODY: asks again and again");
    panel.mayCancel = {};
    panel.onInit = [&] { panel.GetDlgItem(IDCANCEL)->EnableWindow(FALSE); };
    EXPECT_EXIT(resultOf(panel, {}), testing::ExitedWithCode(1), "BODY: asks again and again");
}

TEST(ModalDialogs, aRefusedOkLeavesTheDialogOpen)
{
    Panel panel;
    int asked = 0;
    panel.mayOk = [&] { return ++asked == 3; };
    EXPECT_EQ(resultOf(panel, {"", "click 1", ""}), IDOK);
}

TEST(ModalDialogs, goToAControlThatIsNotDisabled)
{
    Panel panel;
    std::vector<int> focused;
    panel.onPick = [&]
    {
        for (const int id : {Panel::erase, Panel::size, Panel::step})
        {
            panel.GotoDlgCtrl(panel.GetDlgItem(id));
            focused.push_back(GetDlgCtrlID(GetFocus()));
        }
    };
    EXPECT_EQ(resultOf(panel, {"click 12", "^C"}), IDCANCEL);
    EXPECT_EQ(focused, (std::vector<int>{Panel::erase, Panel::erase, Panel::step}));
}

TEST(ModalDialogs, enterDoesNothingWhileTheDefaultButtonIsDisabled)
{
    Panel panel;
    panel.onInit = [&] { panel.GetDlgItem(IDOK)->EnableWindow(FALSE); };
    EXPECT_EQ(resultOf(panel, {"", "^C"}), IDCANCEL);
    EXPECT_EQ(panel.told, Lines{"2 0"});
}

TEST(ModalDialogs, escDoesNothingWhileCancelIsDisabled)
{
    Panel panel;
    panel.onInit = [&] { panel.GetDlgItem(IDCANCEL)->EnableWindow(FALSE); };
    EXPECT_EQ(resultOf(panel, {"^C", "close", ""}), IDOK);
    EXPECT_EQ(panel.told, Lines{"1 0"});
}

TEST(ModalDialogs, enterIsOkWhereNoButtonIsTheDefault)
{
    Panel panel(withoutDefaultButton());
    EXPECT_EQ(resultOf(panel, {""}), IDOK);
    panel.onInit = [&] { panel.GetDlgItem(IDOK)->EnableWindow(FALSE); };
    EXPECT_EQ(resultOf(panel, {"", "^C"}), IDCANCEL);
}

TEST(ModalDialogs, anyOtherResultIsToldAsCancel)
{
    Panel panel;
    panel.onPick = [&] { panel.EndDialog(77); };
    INT_PTR result = 0;
    EXPECT_EQ(show(panel, result, {"click 12"}), "[dialog] Panel\n[dialog closed] cancel\n");
    EXPECT_EQ(result, 77);
}

TEST(ModalDialogs, aDialogEndedWhileItStartsIsNotShown)
{
    Panel panel;
    panel.onInit = [&] { panel.EndDialog(IDOK); };
    INT_PTR result = 0;
    EXPECT_EQ(show(panel, result, {}), "");
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(panel.m_hWnd, nullptr);
}

TEST(ModalDialogs, theCaptionIsToldAsItStandsAfterTheStart)
{
    Panel panel;
    panel.onInit = [&] { panel.SetWindowText(L"Другой"); };
    INT_PTR result = 0;
    EXPECT_TRUE(show(panel, result, {"^C"}).starts_with("[dialog] Другой\n"));
}

TEST(ModalDialogs, aDialogWithoutATemplateIsReported)
{
    support::Session session;
    CDialog dialog(4711);
    INT_PTR result = 0;
    EXPECT_EQ(session.run([&] { result = dialog.DoModal(); }), "");
    EXPECT_EQ(result, -1);
    EXPECT_EQ(session.reports,
              Lines{"dialog 4711 cannot be shown: its template is missing or broken"});
}

TEST(ModalDialogs, aBrokenTemplateIsReported)
{
    const support::Bytes whole = Panel::all().bytes();
    for (std::size_t size = 0; size < whole.size(); size += 7)
    {
        const support::Bytes cut(whole.begin(), whole.begin() + std::ptrdiff_t(size));
        const HINSTANCE module = support::newModule();
        const support::GivenResources given(module,
                                            ResourceFile().dialog(MAKEINTRESOURCEW(5), cut));
        support::Session session;
        CAcUiDialog dialog(5, nullptr, module);
        INT_PTR result = 0;
        session.run([&] { result = dialog.DoModal(); });
        EXPECT_EQ(result, -1) << size;
        EXPECT_EQ(session.reports.size(), 1U) << size;
    }
}

TEST(ModalDialogs, aDialogThatDestroysItselfWhileItStartsIsNone)
{
    support::Session session;
    Panel panel;
    panel.onInit = [&] { DestroyWindow(panel.m_hWnd); };
    INT_PTR result = 0;
    session.run([&] { result = panel.DoModal(); });
    EXPECT_EQ(result, -1);
    EXPECT_EQ(panel.m_hWnd, nullptr);
    EXPECT_EQ(panel.colors.m_hWnd, nullptr);
}

TEST(ModalDialogs, aDialogDestroyedWhileItIsShownIsABreach)
{
    Panel panel;
    panel.onPick = [&] { DestroyWindow(panel.m_hWnd); };
    EXPECT_EXIT(resultOf(panel, {"click 12"}), testing::ExitedWithCode(1),
                "DestroyWindow: a dialog that is shown ends with EndDialog");
}

TEST(ModalDialogs, aDialogThatHidesItselfIsABreach)
{
    Panel panel;
    panel.onPick = [&] { panel.ShowWindow(SW_HIDE); };
    EXPECT_EXIT(resultOf(panel, {"click 12", "show"}), testing::ExitedWithCode(1),
                "CDialog::DoModal: the dialog is hidden");
}

TEST(ModalDialogs, theModulesResourcesAreTheFirstWhileTheDialogRuns)
{
    Panel panel;
    const HINSTANCE before = AfxGetResourceHandle();
    HINSTANCE during = nullptr;
    panel.onInit = [&] { during = AfxGetResourceHandle(); };
    resultOf(panel, {"^C"});
    EXPECT_EQ(during, panel.module);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ModalDialogs, withoutAHandleTheTemplateIsLookedUpInOrder)
{
    const PanelResources resources(Panel::all());
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(resources.module);
    CAcUiDialog dialog(Panel::templateId);
    EXPECT_EQ(resultOf(dialog, {""}), IDOK);
    EXPECT_EQ(AfxGetResourceHandle(), resources.module);
    AfxSetResourceHandle(before);
}

TEST(ModalDialogs, nothingStandsForAWindowAfterwards)
{
    Panel panel;
    HWND window = nullptr;
    HWND list = nullptr;
    panel.onInit = [&]
    {
        window = panel.m_hWnd;
        list = panel.styles.m_hWnd;
        EXPECT_EQ(host::objectOf(window), &panel);
        EXPECT_EQ(host::objectOf(list), &panel.styles);
    };
    resultOf(panel, {"^C"});
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(IsWindow(list));
    EXPECT_EQ(host::objectOf(window), nullptr);
    EXPECT_EQ(host::objectOf(list), nullptr);
    EXPECT_EQ(panel.m_hWnd, nullptr);
    EXPECT_EQ(panel.styles.m_hWnd, nullptr);
}

TEST(ModalDialogs, theSameObjectMayBeShownAgainUnderTheMainWindow)
{
    CWnd* const main = CWnd::FromHandle(adsw_acadMainWnd());
    Panel panel(Panel::all(), main);
    EXPECT_EQ(resultOf(panel, {""}), IDOK);
    // Would take the place of an object that has gone.
    char window;
    CWnd::FromHandle(reinterpret_cast<HWND>(&window));
    EXPECT_EQ(CWnd::FromHandle(adsw_acadMainWnd()), main);
    EXPECT_EQ(resultOf(panel, {"^C"}), IDCANCEL);
}

TEST(ModalDialogs, aDialogOpenedByAnotherTakesTheLinesFirst)
{
    Panel outer;
    Panel inner(withoutDefaultButton());
    CWnd* label = nullptr;
    outer.onInit = [&] { label = outer.GetDlgItem(Panel::stepLabel); };
    outer.onPick = [&]
    {
        EXPECT_EQ(inner.DoModal(), IDOK);
        EXPECT_EQ(outer.GetDlgItem(Panel::stepLabel), label);
        outer.SetDlgItemText(Panel::step, L"inner");
    };
    outer.mayOk = [&] { return outer.text(Panel::step) == L"inner"; };
    INT_PTR result = 0;
    EXPECT_EQ(show(outer, result, {"click 12", "click 1", "click 1"}),
              "[dialog] Panel\n[dialog] Plain\n[dialog closed] ok\n[dialog closed] ok\n");
}

TEST(ModalDialogs, aDialogIsNotShownTwiceAtATime)
{
    Panel panel;
    panel.onPick = [&] { panel.DoModal(); };
    EXPECT_EXIT(resultOf(panel, {"click 12"}), testing::ExitedWithCode(1), "CWnd::Attach: ");
}

TEST(ModalDialogs, aDialogWithNobodyInFrontIsABreach)
{
    Panel panel;
    EXPECT_EXIT(panel.DoModal(), testing::ExitedWithCode(1), "CDialog::DoModal: nobody sits");
}
}  // namespace
