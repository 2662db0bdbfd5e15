// Places dialogs on the screen.
#pragma once

#include "windows.h"

namespace host
{
// Puts the dialog in the middle of the screen, because its owner is not visible, and gives it a
// button of its own on the taskbar. It is called before the dialog is shown. Without a screen it
// does nothing.
void placeDialog(HWND dialog);
}  // namespace host
