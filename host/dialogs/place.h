// Where a dialog appears.
#pragma once

#include "windows.h"

namespace host
{
// Before the dialog is shown: in the middle of the screen, as its owner is not to be seen, and with
// a button of its own on the taskbar. Without a screen nothing.
void placeDialog(HWND dialog);
}  // namespace host
