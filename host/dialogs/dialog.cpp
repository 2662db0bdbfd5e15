#include <string>

#include "afxwin.h"
#include "host/dialogs/modalloop.h"
#include "host/dialogs/ownerdraw.h"
#include "host/dialogs/place.h"
#include "host/dialogs/wnd.h"
#include "host/editor/editor.h"

// Holds the function that the system calls for the window of a dialog.
struct DialogProcedure
{
    static INT_PTR CALLBACK call(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_INITDIALOG)
        {
            auto* dialog = reinterpret_cast<CDialog*>(lParam);
            dialog->Attach(window);
            host::placeDialog(window);
            return dialog->OnInitDialog();
        }
        auto* dialog = static_cast<CDialog*>(host::objectOf(window));
        if (message == WM_COMMAND && dialog != nullptr)
        {
            return dialog->OnCommand(wParam, lParam);
        }
        return host::answerDrawing(message, lParam);
    }
};

namespace
{
LPCDLGTEMPLATEW findTemplate(LPCWSTR name)
{
    const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    return static_cast<LPCDLGTEMPLATEW>(
        LockResource(LoadResource(module, FindResourceW(module, name, RT_DIALOG))));
}

void reportNotShown(UINT templateId)
{
    if (const host::Editor* editor = host::Editor::current())
    {
        editor->report(L"dialog " + std::to_wstring(templateId) +
                       L" cannot be shown: its template is missing or broken");
    }
}
}  // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_BN_CLICKED(IDOK, &CDialog::OnOK)
ON_BN_CLICKED(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

CDialog::CDialog(UINT templateId, CWnd* parent)
    : m_templateId(templateId), m_parent(parent), m_result(-1), m_ended(false)
{
}

CDialog::~CDialog() {}

INT_PTR CDialog::DoModal()
{
    m_result = -1;
    m_ended = false;
    const HWND owner = m_parent != nullptr ? m_parent->m_hWnd : nullptr;
    const HWND window = CreateDialogIndirectParamW(
        AfxGetResourceHandle(), findTemplate(MAKEINTRESOURCEW(m_templateId)), owner,
        &DialogProcedure::call, reinterpret_cast<LPARAM>(this));
    if (window == nullptr)
    {
        host::dropGoneWindows();
        reportNotShown(m_templateId);
        return -1;
    }
    if (!m_ended)
    {
        host::runModalLoop(window, m_ended);
        host::tellDialogClosed(m_result == IDOK);
    }
    DestroyWindow(window);
    host::dropGoneWindows();
    return m_result;
}

void CDialog::EndDialog(int result)
{
    host::windowOf(*this, "CDialog::EndDialog");
    m_result = result;
    m_ended = true;
}

void CDialog::GotoDlgCtrl(CWnd* control)
{
    ::SendMessageW(host::windowOf(*this, "CDialog::GotoDlgCtrl"), WM_NEXTDLGCTL,
                   reinterpret_cast<WPARAM>(host::windowOf(*control, "CDialog::GotoDlgCtrl")),
                   TRUE);
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (UpdateData(TRUE))
    {
        EndDialog(IDOK);
    }
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}
