// Base of the host's dialogs.
#pragma once

#include "afxwin.h"

// A dialog that knows which module holds its template.
class CAdUiBaseDialog : public CDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // templateId names the dialog template. The template is looked up in the module `resources`
    // first, then in the chain; null leaves it to the chain. parent may be null [borrowed].
    // A dialog that is made before InitAcUiDLL ends the run.
    explicit CAdUiBaseDialog(UINT templateId, CWnd* parent = nullptr,
                             HINSTANCE resources = nullptr);

    // CDialog::DoModal with those resources current; the former ones are current again after it.
    virtual INT_PTR DoModal() override;

private:
    HINSTANCE m_resources;
};

// A step of the host's class tree; it adds nothing that a module uses.
class CAdUiDialog : public CAdUiBaseDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // As CAdUiBaseDialog.
    explicit CAdUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
};
