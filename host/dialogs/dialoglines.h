// The lines with which a script or a person works a dialog.
#pragma once

#include <string_view>

#include "host/runtime/result.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
class Editor;

// Does what the line says, by the functions of windows alone: `set ID TEXT`, `check ID on|off`,
// `click ID`, `select ID TEXT` or `#N`, `color ID N`, `show`, `close`. A line that does nothing is
// a failure.
Result<> takeDialogLine(Editor& editor, HWND dialog, std::wstring_view line);
}  // namespace host
