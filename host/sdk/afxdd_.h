// The exchange of values between a dialog's members and its controls.
#pragma once

#include "windows.h"

class CWnd;

// One exchange. UpdateData creates it and passes it to DoDataExchange.
class CDataExchange
{
public:
    // Creates an exchange for a dialog [borrowed].
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;  // FALSE: from the members to the controls
    CWnd* m_pDlgWnd;          // the dialog
};

// Attaches `control` to the dialog's control with that id; the dialog owns both. The first exchange
// attaches it, and later ones change nothing. An id that the dialog does not have ends the run.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
