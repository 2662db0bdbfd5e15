// Runs a dialog with the user in front of it.
#pragma once

#include <functional>

#include "windows.h"
#include "winuser.h"

namespace host
{
// Shows the dialog and passes the user's lines to it until `ended` [borrowed] is set. A dialog that
// is hidden when the user should see it ends the run.
void runModalLoop(HWND dialog, const bool& ended);
// Tells the user that the dialog is closed, by OK or not [prints].
void tellDialogClosed(bool ok);

// Lets a dialog step aside and come back. Prompts are allowed between the two calls; while a dialog
// is shown, a prompt ends the run.
void dialogStepsAside();
void dialogComesBack();

// Calls a function with every dialog that is about to close, for the length of a scope. Only one
// observer may exist at a time.
class DialogObserver
{
public:
    explicit DialogObserver(std::function<void(HWND)> look);
    ~DialogObserver();
    DialogObserver(const DialogObserver&) = delete;
    DialogObserver& operator=(const DialogObserver&) = delete;
};
}  // namespace host
