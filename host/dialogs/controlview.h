// What a user reads in a dialog.
#pragma once

#include <string>

#include "host/editor/owntexts.h"
#include "windows.h"
#include "winuser.h"

namespace host
{
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
OwnText nameOf(ControlKind kind);

// `[control] ID KIND enabled|disabled STATE "TEXT"`
std::wstring controlLine(HWND control);

// The whole dialog for a person at a terminal: controls with their labels and values, the disabled
// ones marked, and a line of help. No line end after the last line.
std::wstring readableView(HWND dialog);
}  // namespace host
