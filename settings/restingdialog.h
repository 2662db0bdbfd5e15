// A dialog under a box that the host opens over it.
#pragma once

#include "hostapi/host.h"

// The dialog is disabled while this lives; then it is in front again, with the keyboard where it
// was.
//
// The box belongs to the host's main window, so Windows would leave the dialog awake under it: a
// second OK asked the question once more, and a Yes stored what a Cancel had taken back.
class RestingDialog
{
public:
    explicit RestingDialog(CWnd& dialog);  // [borrowed]
    ~RestingDialog();

private:
    RestingDialog(const RestingDialog&);
    RestingDialog& operator=(const RestingDialog&);

    CWnd& m_dialog;
    const HWND m_focus;  // null for none
};
