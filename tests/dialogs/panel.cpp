#include "tests/dialogs/panel.h"

#include "host/dialogs/wnd.h"

using support::ResourceFile;
using support::TemplateBuilder;

PanelResources::PanelResources(const TemplateBuilder& made)
    : module(support::newModule()),
      given(module, ResourceFile().dialog(MAKEINTRESOURCEW(Panel::templateId), made.bytes()))
{
}

BEGIN_MESSAGE_MAP(Panel, CAcUiDialog)
ON_BN_CLICKED(Panel::pick, &Panel::OnPick)
END_MESSAGE_MAP()

Panel::Panel(const TemplateBuilder& made, CWnd* parent)
    : PanelResources(made), CAcUiDialog(templateId, parent, module)
{
}

TemplateBuilder Panel::all()
{
    const DWORD list = CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_TABSTOP;
    return TemplateBuilder(L"Panel", 200, 100)
        .control(stepLabel, L"Static", SS_LEFT, 0, 0, 50, 8, L"Step:")
        .control(step, L"Edit", WS_TABSTOP, 50, 0, 50, 12)
        .control(pick, L"Button", BS_OWNERDRAW | WS_TABSTOP, 100, 0, 14, 14, L"Pick")
        .control(sizeLabel, L"Static", SS_LEFT, 0, 16, 50, 8, L"Size:")
        .control(size, L"Edit", WS_TABSTOP | WS_DISABLED, 50, 16, 50, 12)
        .control(look, L"Button", BS_GROUPBOX, 0, 30, 90, 40, L" Look ")
        .control(lines, L"Button", BS_AUTORADIOBUTTON | WS_GROUP, 4, 40, 80, 10, L"Lines")
        .control(crosses, L"Button", BS_AUTORADIOBUTTON, 4, 52, 80, 10, L"Crosses")
        .control(erase, L"Button", BS_AUTOCHECKBOX | WS_GROUP, 100, 40, 80, 10, L"Erase")
        .control(style, L"ComboBox", list, 100, 52, 80, 60)
        .control(color, L"ComboBox", list | CBS_OWNERDRAWFIXED, 100, 66, 80, 60)
        .control(rule, L"Static", SS_ETCHEDVERT, 95, 30, 1, 40)
        .control(frame, L"Static", SS_ETCHEDFRAME, 0, 30, 200, 40)
        .control(hidden, L"Button", WS_TABSTOP, 0, 80, 40, 12, L"More")
        .control(IDOK, L"Button", BS_DEFPUSHBUTTON | WS_TABSTOP, 50, 80, 40, 12, L"OK")
        .control(IDCANCEL, L"Button", WS_TABSTOP, 100, 80, 40, 12, L"Cancel");
}

std::wstring Panel::text(int id) const
{
    return host::windowText(::GetDlgItem(m_hWnd, id));
}

bool Panel::checked(int id) const
{
    return IsDlgButtonChecked(id) == BST_CHECKED;
}

void Panel::DoDataExchange(CDataExchange* exchange)
{
    CAcUiDialog::DoDataExchange(exchange);
    if (GetDlgItem(style) != nullptr)
    {
        DDX_Control(exchange, style, styles);
        DDX_Control(exchange, color, colors);
    }
}

BOOL Panel::OnInitDialog()
{
    CAcUiDialog::OnInitDialog();
    if (GetDlgItem(style) != nullptr)
    {
        GetDlgItem(hidden)->ShowWindow(SW_HIDE);
        CheckRadioButton(lines, crosses, lines);
        for (const wchar_t* name : {L"Standard", L"Notes", L"Two words"})
        {
            styles.AddString(name);
        }
    }
    if (onInit)
    {
        onInit();
    }
    told.clear();
    return TRUE;
}

BOOL Panel::OnCommand(WPARAM wParam, LPARAM lParam)
{
    told.push_back(std::to_string(LOWORD(wParam)) + " " + std::to_string(HIWORD(wParam)));
    return CAcUiDialog::OnCommand(wParam, lParam);
}

void Panel::OnOK()
{
    if (!mayOk || mayOk())
    {
        CAcUiDialog::OnOK();
    }
}

void Panel::OnCancel()
{
    if (!mayCancel || mayCancel())
    {
        CAcUiDialog::OnCancel();
    }
}

void Panel::OnPick()
{
    if (onPick)
    {
        onPick();
    }
}
