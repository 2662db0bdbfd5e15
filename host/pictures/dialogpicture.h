// Draws pictures of dialogs.
#pragma once

#include <string>

#include "host/basics/result.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
// Draws the dialog in its present state, with its frame and caption, at twice the size that it has
// on a screen of 96 dots to the inch. Returns the bytes of a PNG file, or a failure when memory ran
// out.
Result<std::string> drawDialog(HWND dialog);
}  // namespace host
