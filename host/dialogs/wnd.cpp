#include <map>
#include <memory>
#include <string>
#include <utility>

#include "afxwin.h"
#include "host/dialogs/wnd.h"
#include "host/runtime/breach.h"

namespace
{
std::map<HWND, CWnd*>& objects()
{
    static std::map<HWND, CWnd*> all;
    return all;
}

std::map<HWND, std::unique_ptr<CWnd>>& temporaries()
{
    static std::map<HWND, std::unique_ptr<CWnd>> all;
    return all;
}

HWND windowOf(const CWnd& wnd, const char* call)
{
    if (wnd.m_hWnd == nullptr)
    {
        host::breach(call, "the object stands for no window");
    }
    return wnd.m_hWnd;
}
}  // namespace

CWnd* host::objectOf(HWND window)
{
    const auto found = objects().find(window);
    return found != objects().end() ? found->second : nullptr;
}

void host::dropTemporaryObjects()
{
    std::erase_if(temporaries(), [](const auto& entry) { return !IsWindow(entry.first); });
}

std::wstring host::windowText(HWND window)
{
    std::wstring text(std::size_t(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(std::size_t(GetWindowTextW(window, text.data(), int(text.size()))));
    return text;
}

// The root of all maps.
const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY none[] = {
        {0, 0, nullptr}
    };
    static const AFX_MSGMAP map = {nullptr, none};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const
{
    return GetThisMessageMap();
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
END_MESSAGE_MAP()

CWnd::CWnd() : m_hWnd(nullptr) {}

CWnd::~CWnd()
{
    Detach();
}

BOOL CWnd::Attach(HWND window)
{
    m_hWnd = window;
    objects()[window] = this;
    PreSubclassWindow();
    return TRUE;
}

HWND CWnd::Detach()
{
    const auto found = objects().find(m_hWnd);
    if (found != objects().end() && found->second == this)
    {
        objects().erase(found);
    }
    return std::exchange(m_hWnd, nullptr);
}

CWnd* CWnd::FromHandle(HWND window)
{
    if (window == nullptr)
    {
        return nullptr;
    }
    if (CWnd* object = host::objectOf(window))
    {
        return object;
    }
    std::unique_ptr<CWnd>& temporary = temporaries()[window];
    if (!temporary)
    {
        temporary = std::make_unique<CWnd>();
        temporary->m_hWnd = window;
    }
    return temporary.get();
}

CWnd* CWnd::GetDlgItem(int id) const
{
    return FromHandle(::GetDlgItem(windowOf(*this, "CWnd::GetDlgItem"), id));
}

void CWnd::SetWindowText(LPCWSTR text)
{
    SetWindowTextW(windowOf(*this, "CWnd::SetWindowText"), text);
}

void CWnd::GetWindowText(CString& text) const
{
    text = host::windowText(windowOf(*this, "CWnd::GetWindowText")).c_str();
}

void CWnd::SetDlgItemText(int id, LPCWSTR text)
{
    SetWindowTextW(::GetDlgItem(windowOf(*this, "CWnd::SetDlgItemText"), id), text);
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    const HWND control = ::GetDlgItem(windowOf(*this, "CWnd::GetDlgItemText"), id);
    text = host::windowText(control).c_str();
    return text.GetLength();
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(windowOf(*this, "CWnd::EnableWindow"), enable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(windowOf(*this, "CWnd::IsWindowEnabled"));
}

BOOL CWnd::ShowWindow(int command)
{
    return ::ShowWindow(windowOf(*this, "CWnd::ShowWindow"), command);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(windowOf(*this, "CWnd::IsWindowVisible"));
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return SendMessageW(windowOf(*this, "CWnd::SendMessage"), message, wParam, lParam);
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND control = ::GetDlgItem(windowOf(*this, "CWnd::SendDlgItemMessage"), id);
    return SendMessageW(control, message, wParam, lParam);
}

void CWnd::CheckDlgButton(int id, UINT check)
{
    SendDlgItemMessage(id, BM_SETCHECK, check);
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    const HWND control = ::GetDlgItem(windowOf(*this, "CWnd::IsDlgButtonChecked"), id);
    return UINT(SendMessageW(control, BM_GETCHECK, 0, 0));
}

void CWnd::CheckRadioButton(int first, int last, int checked)
{
    for (int id = first; id <= last; ++id)
    {
        CheckDlgButton(id, id == checked ? BST_CHECKED : BST_UNCHECKED);
    }
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    windowOf(*this, "CWnd::UpdateData");
    CDataExchange exchange(this, saveAndValidate);
    DoDataExchange(&exchange);
    return TRUE;
}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM)
{
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->base ? map->base() : nullptr)
    {
        for (const AFX_MSGMAP_ENTRY* entry = map->entries; entry->handler != nullptr; ++entry)
        {
            if (entry->code == HIWORD(wParam) && entry->id == LOWORD(wParam))
            {
                (this->*entry->handler)();
                return TRUE;
            }
        }
    }
    return FALSE;
}

CDataExchange::CDataExchange(CWnd* dialog, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dialog)
{
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control)
{
    if (control.m_hWnd != nullptr)
    {
        return;
    }
    const HWND window = ::GetDlgItem(exchange->m_pDlgWnd->m_hWnd, id);
    if (window == nullptr)
    {
        host::breach("DDX_Control", "the dialog has no control " + std::to_string(id));
    }
    control.Attach(window);
}
