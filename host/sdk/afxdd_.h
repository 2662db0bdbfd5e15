// Exchange between a dialog's members and its controls.
#pragma once

#include "windows.h"

class CWnd;

// One exchange. UpdateData makes it and hands it to DoDataExchange.
class CDataExchange
{
public:
    // dialog is [borrowed].
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;  // FALSE: from the members to the controls
    CWnd* m_pDlgWnd;          // the dialog
};

// Makes `control` stand for the dialog's control with that id; the dialog owns both. The first
// exchange does so, later ones change nothing. An id that the dialog does not have ends the run.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
