// Describes a dialog in text.
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
// Returns the word for a kind in lines and messages.
OwnText nameOf(ControlKind kind);

// Returns the control as a script reads it: `[control] ID KIND enabled|disabled STATE "TEXT"`.
std::wstring controlLine(HWND control);

// Returns the dialog for a person at a terminal: the visible controls with their labels and values,
// marks on disabled controls, and a line of help. The last line has no line end.
std::wstring readableView(HWND dialog);
}  // namespace host
