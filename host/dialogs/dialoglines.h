// The lines with which a script or a person works a dialog.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "windows.h"
#include "winuser.h"

namespace host
{
class Editor;

// Does what the line says, over the functions of windows only: `set ID TEXT`, `check ID on|off`,
// `click ID`, `select ID TEXT` or `#N`, `color ID N`, `show`, `close`. What is wrong with a line
// that does nothing, in one line.
std::optional<std::wstring> takeDialogLine(Editor& editor, HWND dialog, std::wstring_view line);
}  // namespace host
