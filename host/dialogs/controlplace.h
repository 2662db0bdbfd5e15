// Where a control of a dialog stands among the others.
#pragma once

#include <string>

#include "windows.h"

namespace host
{
// What a person calls the control: its text; for a check box without one that of the frame in
// whose caption it stands; and for check boxes of one text around a figure of lines, as well, the
// edge of the figure at which each of them stands.
std::wstring shownName(HWND control);
}  // namespace host
