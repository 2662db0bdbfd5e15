// A dialog and the user in front of it.
#pragma once

#include <functional>

#include "windows.h"
#include "winuser.h"

namespace host
{
// Shows the dialog and hands the user's lines to it until `ended` is set. A dialog that is hidden
// when the user should see it is a breach.
void runModalLoop(HWND dialog, const bool& ended);
void tellDialogClosed(bool ok);

// Prompts are allowed between the two; while a dialog is shown they are a breach.
void dialogStepsAside();
void dialogComesBack();

// Looks at every dialog as it stands when it is about to close, for the length of a scope. One at a
// time.
class DialogObserver
{
public:
    explicit DialogObserver(std::function<void(HWND)> look);
    ~DialogObserver();
    DialogObserver(const DialogObserver&) = delete;
    DialogObserver& operator=(const DialogObserver&) = delete;
};
}  // namespace host
