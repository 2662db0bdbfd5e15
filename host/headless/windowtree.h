// Windows without a screen: what each of them knows of itself, and where it is found.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "windows.h"
#include "winuser.h"

namespace host
{
struct Window;

struct WindowClass
{
    WORD ordinal;  // stands for the name in templates
    const wchar_t* name;
    LRESULT (*answer)(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
};

struct ListItem
{
    std::wstring text;
    DWORD_PTR data = 0;
};

struct Window
{
    HWND handle = nullptr;
    const WindowClass* kind = nullptr;
    HWND parent = nullptr;  // a control's dialog, a dialog's owner
    int id = 0;
    DWORD style = 0;  // WS_VISIBLE and WS_DISABLED as they are now
    RECT place{};     // pixels, with the corner of the dialog's client area for origin
    std::wstring text{};

    bool checked = false;           // buttons
    std::wstring banner{};          // edits: shown while there is no text
    std::vector<ListItem> items{};  // combo boxes
    int selected = -1;
    DLGPROC procedure = nullptr;  // dialogs

    bool has(DWORD bits) const { return (style & bits) == bits; }
    void put(DWORD bits, bool on) { style = on ? style | bits : style & ~bits; }
    bool isChild() const { return has(WS_CHILD); }
    bool isEnabled() const { return !has(WS_DISABLED); }
};

// A handle is a number that is never used again.
HWND addWindow(const Window& window);
// With the windows that have it for parent.
void removeWindow(HWND window);
// Null for none; good until the window is removed, which any procedure may do.
Window* findWindow(HWND window);
// In the order in which they were made.
std::vector<HWND> controlsOf(HWND dialog);
// Dialogs and their controls; 0 when no dialog was left behind.
std::size_t openWindows();

HWND& focusedWindow();
}  // namespace host
