// Exchange between a dialog's members and its controls.
#pragma once

#include "windows.h"

class CWnd;

class CDataExchange
{
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate);

    BOOL m_bSaveAndValidate;  // FALSE: from the members to the controls
    CWnd* m_pDlgWnd;          // the dialog
};

// Makes the object stand for the control, on the first exchange. A control that the dialog does not
// have is a breach.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);
