#include <map>
#include <memory>
#include <string>
#include <utility>

#include "acedads.h"
#include "afxwin.h"
#include "host/dialogs/wnd.h"
#include "host/basics/breach.h"

namespace
{
// The two maps are never destroyed, because a module's objects may live longer than static objects.
std::map<HWND, CWnd*>& objects()
{
    static std::map<HWND, CWnd*>& all = *new std::map<HWND, CWnd*>;
    return all;
}

std::map<HWND, std::unique_ptr<CWnd>>& temporaries()
{
    using Objects = std::map<HWND, std::unique_ptr<CWnd>>;
    static Objects& all = *new Objects;
    return all;
}
}  // namespace

HWND host::windowOf(const CWnd& object, const char* call)
{
    if (object.m_hWnd == nullptr)
    {
        breach(call, "the object stands for no window");
    }
    return object.m_hWnd;
}

CWnd* host::objectOf(HWND window)
{
    const auto found = objects().find(window);
    return found != objects().end() ? found->second : nullptr;
}

// Keeps the object of the main window even if no window has its handle, because it is the parent of
// dialogs.
void host::dropGoneWindows()
{
    const auto isGone = [](const auto& entry)
    { return entry.first != adsw_acadMainWnd() && !IsWindow(entry.first); };
    std::erase_if(temporaries(), isGone);
    const std::map<HWND, CWnd*> known = objects();
    for (const auto& entry : known)
    {
        if (isGone(entry))
        {
            entry.second->Detach();
        }
    }
}

std::wstring host::windowText(HWND window)
{
    std::wstring text(std::size_t(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(std::size_t(::GetWindowTextW(window, text.data(), int(text.size()))));
    return text;
}

// Returns the message map at which every chain of maps ends.
const AFX_MSGMAP* CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY none[] = {{0, 0, nullptr}};
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
    if (window == nullptr)
    {
        return FALSE;
    }
    if (m_hWnd != nullptr)
    {
        host::breach("CWnd::Attach", "the object stands for another window");
    }
    if (host::objectOf(window) != nullptr)
    {
        host::breach("CWnd::Attach", "another object stands for the window");
    }
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
    return FromHandle(::GetDlgItem(host::windowOf(*this, "CWnd::GetDlgItem"), id));
}

void CWnd::SetWindowText(LPCWSTR text)
{
    ::SetWindowTextW(host::windowOf(*this, "CWnd::SetWindowText"), text);
}

void CWnd::GetWindowText(CString& text) const
{
    text = host::windowText(host::windowOf(*this, "CWnd::GetWindowText")).c_str();
}

void CWnd::SetDlgItemText(int id, LPCWSTR text)
{
    ::SetWindowTextW(::GetDlgItem(host::windowOf(*this, "CWnd::SetDlgItemText"), id), text);
}

int CWnd::GetDlgItemText(int id, CString& text) const
{
    const HWND control = ::GetDlgItem(host::windowOf(*this, "CWnd::GetDlgItemText"), id);
    text = host::windowText(control).c_str();
    return text.GetLength();
}

BOOL CWnd::EnableWindow(BOOL enable)
{
    return ::EnableWindow(host::windowOf(*this, "CWnd::EnableWindow"), enable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(host::windowOf(*this, "CWnd::IsWindowEnabled"));
}

BOOL CWnd::ShowWindow(int command)
{
    return ::ShowWindow(host::windowOf(*this, "CWnd::ShowWindow"), command);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(host::windowOf(*this, "CWnd::IsWindowVisible"));
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessageW(host::windowOf(*this, "CWnd::SendMessage"), message, wParam, lParam);
}

LRESULT CWnd::SendDlgItemMessage(int id, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND control = ::GetDlgItem(host::windowOf(*this, "CWnd::SendDlgItemMessage"), id);
    return ::SendMessageW(control, message, wParam, lParam);
}

void CWnd::CheckDlgButton(int id, UINT check)
{
    const HWND button = ::GetDlgItem(host::windowOf(*this, "CWnd::CheckDlgButton"), id);
    ::SendMessageW(button, BM_SETCHECK, check, 0);
}

UINT CWnd::IsDlgButtonChecked(int id) const
{
    const HWND control = ::GetDlgItem(host::windowOf(*this, "CWnd::IsDlgButtonChecked"), id);
    return UINT(::SendMessageW(control, BM_GETCHECK, 0, 0));
}

void CWnd::CheckRadioButton(int first, int last, int checked)
{
    host::windowOf(*this, "CWnd::CheckRadioButton");
    for (int id = first; id <= last; ++id)
    {
        CheckDlgButton(id, id == checked ? BST_CHECKED : BST_UNCHECKED);
    }
}

BOOL CWnd::UpdateData(BOOL saveAndValidate)
{
    host::windowOf(*this, "CWnd::UpdateData");
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
