// Dialogs that ask questions at the editor's prompts.
#pragma once

#include "aduiDialog.h"

// A dialog that can step aside while the user answers prompts.
class CAcUiDialog : public CAdUiDialog
{
    DECLARE_MESSAGE_MAP()

public:
    // Takes the arguments of CAdUiBaseDialog. The destructor ends the run when a BeginEditorCommand
    // has no matching end.
    explicit CAcUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE resources = nullptr);
    virtual ~CAcUiDialog();

    // Hides the dialog so that prompts may run. A dialog without a window ends the run. Each call
    // needs exactly one CompleteEditorCommand or CancelEditorCommand; a second Begin before that
    // ends the run.
    virtual void BeginEditorCommand();
    // Shows the dialog again, whatever the prompts returned; with FALSE the dialog stays hidden.
    // From then on a prompt ends the run again. A call without its Begin ends the run.
    virtual void CompleteEditorCommand(BOOL restoreDialogs = TRUE);
    // Does what CompleteEditorCommand does, for a prompt that the user cancelled. Callers may use
    // either function.
    virtual void CancelEditorCommand();

private:
    bool m_editing;
};
