// Dialogs that ask at the editor's prompts.
#pragma once

#include "aduiDialog.h"

// A dialog that may step aside while the user answers prompts.
class CAcUiDialog : public CAdUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // As CAdUiBaseDialog. The destructor ends the run when BeginEditorCommand has no end.
    explicit CAcUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
    virtual ~CAcUiDialog();

    // Hides the dialog so that prompts may run. The dialog must stand. Each call has exactly one
    // CompleteEditorCommand or CancelEditorCommand; another Begin before that ends the run.
    virtual void BeginEditorCommand();
    // Shows the dialog again, whatever the prompts gave; with FALSE it stays hidden. Prompts end
    // the run again. A call without its Begin ends the run.
    virtual void CompleteEditorCommand(BOOL restoreDialogs = TRUE);
    // CompleteEditorCommand for a prompt that the user broke off. Callers may use either.
    virtual void CancelEditorCommand();

private:
    bool m_editing;
};
