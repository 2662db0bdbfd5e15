// Disables a dialog while the host shows a box over it.
#pragma once

#include "hostapi/host.h"

// Keeps the dialog disabled while this object lives.
//
// The box belongs to the host's main window, so Windows would leave the dialog enabled under it. A
// second OK would then ask the question again, and a Yes would store what the user had cancelled.
class RestingDialog
{
public:
    // Disables the dialog, which is [borrowed] while this object lives.
    explicit RestingDialog(CWnd& dialog);

    // Enables the dialog, brings it to the front and returns the keyboard focus to the control that
    // had it.
    ~RestingDialog();

private:
    RestingDialog(const RestingDialog&);
    RestingDialog& operator=(const RestingDialog&);

    CWnd& m_dialog;
    const HWND m_focus;  // null: no window had the focus
};
