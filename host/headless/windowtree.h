// Keeps the windows of a system without a screen: the state of each window and the list of all.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "windows.h"
#include "winuser.h"

namespace host
{
struct Window;

// The data that windows of one kind share.
struct WindowClass
{
    WORD ordinal;  // the number that templates use instead of the name
    const wchar_t* name;
    LRESULT (*answer)(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
};

// An item of a combo box.
struct ListItem
{
    std::wstring text;
    DWORD_PTR data = 0;
};

// A window. Only the members that belong to its class have a meaning.
struct Window
{
    HWND handle = nullptr;
    const WindowClass* kind = nullptr;
    HWND parent = nullptr;  // the dialog of a control, or the owner of a dialog
    int id = 0;
    DWORD style = 0;  // WS_VISIBLE and WS_DISABLED have their present values
    RECT place{};     // pixels from the corner of the dialog's client area
    std::wstring text{};

    bool checked = false;           // buttons
    std::wstring banner{};          // edits: shown while the text is empty
    std::vector<ListItem> items{};  // combo boxes
    int selected = -1;
    DLGPROC procedure = nullptr;  // dialogs

    bool has(DWORD bits) const { return (style & bits) == bits; }
    void put(DWORD bits, bool on) { style = on ? style | bits : style & ~bits; }
    bool isChild() const { return has(WS_CHILD); }
    bool isEnabled() const { return !has(WS_DISABLED); }
};

// Adds a copy of the window and returns its handle. A handle is never used again.
HWND addWindow(const Window& window);
// Removes the window and all windows whose parent it is.
void removeWindow(HWND window);
// Returns the window [borrowed], or null for an unknown handle. The pointer is good until the
// window is removed, which any dialog procedure may do.
Window* findWindow(HWND window);
// Returns the controls of a dialog in the order in which they were created.
std::vector<HWND> controlsOf(HWND dialog);
// Returns the number of dialogs and controls. It is 0 when every dialog has been destroyed.
std::size_t openWindows();

// Returns the variable with the window that has the focus [borrowed], which lives as long as the
// program. The window is null when no window has the focus.
HWND& focusedWindow();
}  // namespace host
