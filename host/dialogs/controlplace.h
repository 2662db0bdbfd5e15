// Names controls by their place in the dialog.
#pragma once

#include <string>

#include "windows.h"

namespace host
{
// Returns the name by which a person refers to the control: its text. A check box without a text
// has the text of the frame whose caption holds it. If several check boxes around a figure of lines
// have the same text, each name also contains the edge of the figure beside the check box.
std::wstring shownName(HWND control);
}  // namespace host
