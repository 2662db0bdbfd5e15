#include "settings/restingdialog.h"

RestingDialog::RestingDialog(CWnd& dialog) : m_dialog(dialog), m_focus(GetFocus())
{
    m_dialog.EnableWindow(FALSE);
}

// Windows has looked for another window to work in when the box went, and while the dialog and the
// main window were both disabled it may have found only another program's.
RestingDialog::~RestingDialog()
{
    m_dialog.EnableWindow(TRUE);
    SetForegroundWindow(m_dialog.m_hWnd);
    if (m_focus != nullptr)
    {
        SetFocus(m_focus);
    }
}
