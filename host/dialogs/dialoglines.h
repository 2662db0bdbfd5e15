// Executes the lines with which a script or a person operates a dialog.
#pragma once

#include <string_view>

#include "host/basics/result.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
class Editor;

// Executes a line by calling functions of windows only: `set ID TEXT`, `check ID on|off`, `click
// ID`, `select ID TEXT` or `#N`, `color ID N`, `show`, `close`. Returns a failure with the reason
// for a line that cannot be executed.
Result<> takeDialogLine(Editor& editor, HWND dialog, std::wstring_view line);
}  // namespace host
