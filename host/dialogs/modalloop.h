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

// Called with every dialog as it stands when it is about to close; empty takes it away.
void setDialogObserver(std::function<void(HWND)> observer);
}  // namespace host
