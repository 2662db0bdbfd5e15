// Objects that stand for windows, and their message maps.
#include <gtest/gtest.h>

#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

namespace
{
void show(Panel& panel, const std::vector<std::string>& lines = {"^C"})
{
    support::Session session;
    session.run([&] { panel.DoModal(); }, lines);
}

class Plain : public CDialog
{
    DECLARE_MESSAGE_MAP()

public:
    Plain() : CDialog(1) {}

    BOOL tell(int id, int code) { return OnCommand(MAKEWPARAM(id, code), 0); }

    std::string answered;

protected:
    virtual void OnOK() override { answered += "plain OK;"; }

private:
    void OnTen() { answered += "plain 10;"; }
    void OnEleven() { answered += "plain 11;"; }
    void OnElevenAgain() { answered += "plain 11 again;"; }
};

BEGIN_MESSAGE_MAP(Plain, CDialog)
ON_BN_CLICKED(10, &Plain::OnTen)
ON_BN_CLICKED(11, &Plain::OnEleven)
ON_BN_CLICKED(11, &Plain::OnElevenAgain)
END_MESSAGE_MAP()

class Special : public Plain
{
    DECLARE_MESSAGE_MAP()

private:
    void OnTen() { answered += "special 10;"; }
    void OnTwelve() { answered += "special 12;"; }
};

BEGIN_MESSAGE_MAP(Special, Plain)
ON_BN_CLICKED(10, &Special::OnTen)
ON_BN_CLICKED(12, &Special::OnTwelve)
END_MESSAGE_MAP()

struct Telling
{
    int id;
    int code;
    const char* plain;    // the answer of the base class; empty if it does not answer
    const char* special;  // the answer of the derived class
};

const Telling tellings[] = {
    {10, BN_CLICKED, "plain 10;", "special 10;"},  // a class is asked before its base
    {11, BN_CLICKED, "plain 11;", "plain 11;"},    // the first entry of a map is taken
    {12, BN_CLICKED, "", "special 12;"},          {13, BN_CLICKED, "", ""}, {10, EN_CHANGE, "", ""},
    {IDOK, BN_CLICKED, "plain OK;", "plain OK;"},  // by CDialog's own map
};

TEST(MessageMaps, goFromTheClassToItsRoot)
{
    for (const Telling& row : tellings)
    {
        Plain plain;
        Special special;
        EXPECT_EQ(plain.tell(row.id, row.code), *row.plain != '\0') << row.id;
        EXPECT_EQ(special.tell(row.id, row.code), *row.special != '\0') << row.id;
        EXPECT_EQ(plain.answered, row.plain);
        EXPECT_EQ(special.answered, row.special);
    }
}

TEST(WindowObjects, aControlHasOneObject)
{
    Panel panel;
    panel.onInit = [&]
    {
        CWnd* const label = panel.GetDlgItem(Panel::stepLabel);
        EXPECT_EQ(panel.GetDlgItem(Panel::stepLabel), label);
        EXPECT_EQ(CWnd::FromHandle(label->m_hWnd), label);
        EXPECT_NE(panel.GetDlgItem(Panel::step), label);
        EXPECT_EQ(panel.GetDlgItem(Panel::style), &panel.styles);
        EXPECT_EQ(CWnd::FromHandle(panel.m_hWnd), &panel);
        EXPECT_EQ(panel.GetDlgItem(999), nullptr);
        EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    };
    show(panel);
}

TEST(WindowObjects, attachedAndDetachedAnObjectTakesTheWindowAndLeavesIt)
{
    Panel panel;
    CWnd edit;
    panel.onInit = [&]
    {
        const HWND window = ::GetDlgItem(panel.m_hWnd, Panel::step);
        EXPECT_FALSE(edit.Attach(nullptr));
        EXPECT_EQ(edit.m_hWnd, nullptr);
        EXPECT_TRUE(edit.Attach(window));
        EXPECT_EQ(panel.GetDlgItem(Panel::step), &edit);
        EXPECT_EQ(edit.Detach(), window);
        EXPECT_EQ(edit.Detach(), nullptr);
        EXPECT_NE(panel.GetDlgItem(Panel::step), &edit);
    };
    show(panel);
}

TEST(WindowObjects, anObjectThatGoesLeavesItsWindowToAnother)
{
    Panel panel;
    panel.onInit = [&]
    {
        const HWND window = ::GetDlgItem(panel.m_hWnd, Panel::step);
        {
            CWnd first;
            first.Attach(window);
        }
        CWnd second;
        EXPECT_TRUE(second.Attach(window));
        EXPECT_TRUE(IsWindow(window));
    };
    show(panel);
}

TEST(WindowObjects, twoForOneAreABreach)
{
    Panel panel;
    CWnd object;
    panel.onInit = [&] { object.Attach(panel.m_hWnd); };
    EXPECT_EXIT(show(panel), testing::ExitedWithCode(1), "CWnd::Attach: another object stands for");
    panel.onInit = [&] { panel.colors.Attach(::GetDlgItem(panel.m_hWnd, Panel::step)); };
    EXPECT_EXIT(show(panel), testing::ExitedWithCode(1),
                "CWnd::Attach: the object stands for another window");
}

TEST(WindowObjects, textsComeBackAsTheyWereSet)
{
    Panel panel;
    panel.onInit = [&]
    {
        CString text;
        panel.SetDlgItemText(Panel::step, L"Шаг ");
        EXPECT_EQ(panel.GetDlgItemText(Panel::step, text), 4);
        EXPECT_EQ(text.Compare(L"Шаг "), 0);
        panel.GetDlgItem(Panel::step)->SetWindowText(L"");
        panel.GetDlgItem(Panel::step)->GetWindowText(text);
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(panel.GetDlgItemText(999, text), 0);
    };
    show(panel);
}

TEST(WindowObjects, tellWhetherTheyWereEnabledAndVisible)
{
    Panel panel;
    panel.onPick = [&]
    {
        CWnd& edit = *panel.GetDlgItem(Panel::step);
        EXPECT_FALSE(edit.EnableWindow(FALSE));
        EXPECT_FALSE(edit.IsWindowEnabled());
        EXPECT_TRUE(edit.EnableWindow());
        EXPECT_TRUE(edit.IsWindowEnabled());
        EXPECT_TRUE(edit.ShowWindow(SW_HIDE));
        EXPECT_FALSE(edit.IsWindowVisible());
        EXPECT_FALSE(edit.ShowWindow(SW_SHOW));
        EXPECT_TRUE(edit.IsWindowVisible());
    };
    show(panel, {"click 12", "^C"});
}

TEST(WindowObjects, oneRadioButtonOfARowIsChecked)
{
    Panel panel;
    panel.onInit = [&]
    {
        panel.CheckDlgButton(Panel::erase, BST_CHECKED);
        panel.CheckRadioButton(Panel::lines, Panel::crosses, Panel::crosses);
        EXPECT_FALSE(panel.checked(Panel::lines));
        EXPECT_TRUE(panel.checked(Panel::crosses));
        EXPECT_TRUE(panel.checked(Panel::erase));
        EXPECT_EQ(panel.IsDlgButtonChecked(999), UINT(BST_UNCHECKED));
    };
    show(panel);
}

TEST(WindowObjects, aListGivesBackWhatWasPutIn)
{
    Panel panel;
    panel.onInit = [&]
    {
        CComboBox& list = panel.styles;
        CString text;
        EXPECT_EQ(list.GetCount(), 3);
        EXPECT_EQ(list.GetCurSel(), CB_ERR);
        EXPECT_EQ(list.SetCurSel(2), 2);
        EXPECT_EQ(list.InsertString(0, L"First"), 0);
        EXPECT_EQ(list.GetCurSel(), 3);
        EXPECT_EQ(list.SetItemData(1, 42), 0);
        EXPECT_EQ(list.GetItemData(1), 42U);
        EXPECT_EQ(list.FindStringExact(-1, L"NOTES"), 2);
        EXPECT_EQ(list.FindStringExact(-1, L"Note"), CB_ERR);
        list.GetLBText(3, text);
        EXPECT_EQ(text.Compare(L"Two words"), 0);
        list.GetLBText(4, text);
        EXPECT_TRUE(text.IsEmpty());
        EXPECT_EQ(list.DeleteString(0), 3);
        list.ResetContent();
        EXPECT_EQ(list.GetCount(), 0);
        EXPECT_EQ(list.SetCurSel(0), CB_ERR);
    };
    show(panel);
}

CString aText;

struct Call
{
    const char* name;
    void (*call)(Panel&);
};

const Call callsForAWindow[] = {
    {"CWnd::GetDlgItem", [](Panel& p) { p.GetDlgItem(1); }},
    {"CWnd::SetWindowText", [](Panel& p) { p.SetWindowText(L""); }},
    {"CWnd::GetWindowText", [](Panel& p) { p.GetWindowText(aText); }},
    {"CWnd::SetDlgItemText", [](Panel& p) { p.SetDlgItemText(1, L""); }},
    {"CWnd::GetDlgItemText", [](Panel& p) { p.GetDlgItemText(1, aText); }},
    {"CWnd::EnableWindow", [](Panel& p) { p.EnableWindow(); }},
    {"CWnd::IsWindowEnabled", [](Panel& p) { p.IsWindowEnabled(); }},
    {"CWnd::ShowWindow", [](Panel& p) { p.ShowWindow(SW_SHOW); }},
    {"CWnd::IsWindowVisible", [](Panel& p) { p.IsWindowVisible(); }},
    {"CWnd::SendMessage", [](Panel& p) { p.SendMessage(WM_CLOSE); }},
    {"CWnd::SendDlgItemMessage", [](Panel& p) { p.SendDlgItemMessage(1, BM_CLICK); }},
    {"CWnd::CheckDlgButton", [](Panel& p) { p.CheckDlgButton(1, 1); }},
    {"CWnd::IsDlgButtonChecked", [](Panel& p) { p.IsDlgButtonChecked(1); }},
    {"CWnd::CheckRadioButton", [](Panel& p) { p.CheckRadioButton(1, 2, 1); }},
    {"CWnd::UpdateData", [](Panel& p) { p.UpdateData(FALSE); }},
    {"CDialog::EndDialog", [](Panel& p) { p.EndDialog(IDOK); }},
    {"BeginEditorCommand", [](Panel& p) { p.BeginEditorCommand(); }},
    {"CComboBox::GetCount", [](Panel& p) { p.styles.GetCount(); }},
    {"CComboBox::GetCurSel", [](Panel& p) { p.colors.GetCurrentItemColorIndex(); }},
    {"CComboBox::SetCurSel", [](Panel& p) { p.styles.SetCurSel(0); }},
    {"CComboBox::AddString", [](Panel& p) { p.styles.AddString(L""); }},
    {"CComboBox::InsertString", [](Panel& p) { p.styles.InsertString(0, L""); }},
    {"CComboBox::DeleteString", [](Panel& p) { p.styles.DeleteString(0); }},
    {"CComboBox::ResetContent", [](Panel& p) { p.styles.ResetContent(); }},
    {"CComboBox::FindStringExact", [](Panel& p) { p.styles.FindStringExact(-1, L""); }},
    {"CComboBox::GetLBText", [](Panel& p) { p.styles.GetLBText(0, aText); }},
    {"CComboBox::GetItemData", [](Panel& p) { p.styles.GetItemData(0); }},
    {"CComboBox::SetItemData", [](Panel& p) { p.styles.SetItemData(0, 0); }},
    {"CAdUiOwnerDrawButton::AutoLoad", [](Panel&) { CAdUiBitmapButton(L"A").AutoLoad(); }},
};

TEST(WindowObjects, aCallWithoutAWindowIsABreachThatNamesTheCall)
{
    for (const Call& row : callsForAWindow)
    {
        Panel panel;
        EXPECT_EXIT(row.call(panel), testing::ExitedWithCode(1),
                    std::string("arxhost: ") + row.name + ": the object stands for no window");
    }
}

// Asks for a control that its template does not have.
class Wrong : public Panel
{
protected:
    virtual void DoDataExchange(CDataExchange* exchange) override
    {
        CWnd other;
        DDX_Control(exchange, 999, other);
    }
};

TEST(WindowObjects, anExchangeWithAControlThatIsNotThereIsABreach)
{
    Wrong wrong;
    EXPECT_EXIT(show(wrong), testing::ExitedWithCode(1),
                "DDX_Control: the dialog has no control 999");
}

TEST(WindowObjects, aSecondExchangeLeavesTheObjectsAsTheyAre)
{
    Panel panel;
    panel.onInit = [&]
    {
        const HWND before = panel.colors.m_hWnd;
        panel.UpdateData(FALSE);
        EXPECT_EQ(panel.colors.m_hWnd, before);
        EXPECT_EQ(panel.colors.GetCount(), 9);
    };
    show(panel);
}
}  // namespace
