// Places dialogs on the screen.
#pragma once

#include "windows.h"

namespace host
{
// Puts the dialog in the middle of the screen, because its owner is not visible, and gives it a
// separate button on the taskbar. The caller calls it before the dialog is shown. Without a screen
// the function does nothing.
void placeDialog(HWND dialog);
}  // namespace host
