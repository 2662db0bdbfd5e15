// Draws pictures of dialogs.
#pragma once

#include <string>

#include "host/basics/result.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
// Draws the dialog as it stands, with its frame and caption, at twice the size that it has on a
// screen of 96 dots to the inch. Returns the bytes of a PNG file; a failure when memory ran out.
Result<std::string> drawDialog(HWND dialog);
}  // namespace host
