// The base classes of the host's dialogs.
#pragma once

#include "afxwin.h"

// A dialog that knows which module holds its template.
class CAdUiBaseDialog : public CDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // Creates a dialog from the template templateId. The template is looked up in the module
    // `resources` first and then in the chain; null selects the chain alone. parent may be null
    // [borrowed]. A dialog that is created before InitAcUiDLL ends the run.
    explicit CAdUiBaseDialog(UINT templateId, CWnd* parent = nullptr,
                             HINSTANCE resources = nullptr);

    // Calls CDialog::DoModal with those resources current, and restores the former ones afterwards.
    virtual INT_PTR DoModal() override;

private:
    HINSTANCE m_resources;
};

// A part of the host's class tree; it adds nothing that a module uses.
class CAdUiDialog : public CAdUiBaseDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // Takes the arguments of CAdUiBaseDialog.
    explicit CAdUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
};
