// Names controls by their place in the dialog.
#pragma once

#include <string>

#include "windows.h"

namespace host
{
// Returns what a person calls the control: its text. A check box without a text has the text of the
// frame in whose caption it stands. Check boxes of one text around a figure of lines also name the
// edge of the figure at which they stand.
std::wstring shownName(HWND control);
}  // namespace host
