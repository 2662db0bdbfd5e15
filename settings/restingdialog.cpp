#include "settings/restingdialog.h"

RestingDialog::RestingDialog(CWnd& dialog) : m_dialog(dialog), m_focus(GetFocus())
{
    m_dialog.EnableWindow(FALSE);
}

// When the box closes, Windows looks for another window to activate. The dialog and the main window
// are disabled at that moment, so Windows may have activated a window of another program.
RestingDialog::~RestingDialog()
{
    m_dialog.EnableWindow(TRUE);
    SetForegroundWindow(m_dialog.m_hWnd);
    if (m_focus != nullptr)
    {
        SetFocus(m_focus);
    }
}
