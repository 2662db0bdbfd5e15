// Dialogs that ask at the editor's prompts.
#pragma once

#include "aduiDialog.h"

class CAcUiDialog : public CAdUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    explicit CAcUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
    virtual ~CAcUiDialog();

    // Hides the dialog so that prompts may run; one of the next two must follow each call.
    virtual void BeginEditorCommand();
    // Shows the dialog again; not with FALSE, when another dialog is going to.
    virtual void CompleteEditorCommand(BOOL restoreDialogs = TRUE);
    // The same after a prompt that the user broke off.
    virtual void CancelEditorCommand();

private:
    bool m_editing;
};
