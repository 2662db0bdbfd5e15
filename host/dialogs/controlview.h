// A dialog as text.
#pragma once

#include <string>

#include "host/editor/owntexts.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
// The kinds of controls that a script or a person can tell apart.
enum class ControlKind
{
    edit,
    button,
    check,
    radio,
    combo,
    label,
    group,
    line
};

ControlKind kindOf(HWND control);
// The word for it in lines and messages.
OwnText nameOf(ControlKind kind);

// The control as a script reads it: `[control] ID KIND enabled|disabled STATE "TEXT"`.
std::wstring controlLine(HWND control);

// The whole dialog for a person at a terminal: the controls with their labels and values, marks on
// those that are disabled, and a line of help. The last line has no end.
std::wstring readableView(HWND dialog);
}  // namespace host
