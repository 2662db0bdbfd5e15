// Pictures of dialogs.
#pragma once

#include <string>

#include "host/runtime/result.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
// Draws the dialog as it stands, with its frame and caption, twice the size it has on a screen of
// 96 dots to the inch, and returns the bytes of a PNG file. It fails when memory runs out.
Result<std::string> drawDialog(HWND dialog);
}  // namespace host
