// Dialogs of the host: they step aside while the user answers at the command line.
#pragma once

#include "afxwin.h"

class CAdUiBaseDialog : public CDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // resources: where the template is; null: the order of look-up decides.
    explicit CAdUiBaseDialog(UINT templateId, CWnd* parent = nullptr,
                             HINSTANCE resources = nullptr);

    virtual INT_PTR DoModal() override;

private:
    HINSTANCE m_resources;
};

class CAdUiDialog : public CAdUiBaseDialog
{
    DECLARE_MESSAGE_MAP()

public:
    explicit CAdUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
};
