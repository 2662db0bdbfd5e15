// The dialog classes call Windows' own functions, so that one source serves both systems. This file
// implements these functions where there is no screen.
#include <algorithm>

#include "host/headless/messages.h"

using host::findWindow;
using host::Window;

namespace
{
HWND nextControl(const Window& control)
{
    const std::vector<HWND> controls = host::controlsOf(control.parent);
    const auto next = std::ranges::upper_bound(controls, control.handle);
    return next != controls.end() ? *next : nullptr;
}

HWND firstControl(HWND dialog)
{
    const std::vector<HWND> controls = host::controlsOf(dialog);
    return controls.empty() ? nullptr : controls.front();
}
}  // namespace

BOOL DestroyWindow(HWND window)
{
    const BOOL there = IsWindow(window);
    host::removeWindow(window);
    return there;
}

BOOL IsWindow(HWND window)
{
    return findWindow(window) != nullptr;
}

HWND GetDlgItem(HWND dialog, int id)
{
    for (const HWND control : host::controlsOf(dialog))
    {
        if (findWindow(control)->id == id)
        {
            return control;
        }
    }
    return nullptr;
}

int GetDlgCtrlID(HWND control)
{
    const Window* found = findWindow(control);
    return found != nullptr ? found->id : 0;
}

HWND GetParent(HWND window)
{
    const Window* found = findWindow(window);
    return found != nullptr ? found->parent : nullptr;
}

HWND GetWindow(HWND window, UINT which)
{
    const Window* found = findWindow(window);
    if (found == nullptr)
    {
        return nullptr;
    }
    switch (which)
    {
        case GW_CHILD:
            return firstControl(window);
        case GW_HWNDNEXT:
            return nextControl(*found);
        default:
            return nullptr;
    }
}

int GetClassNameW(HWND window, LPWSTR name, int size)
{
    const Window* found = findWindow(window);
    return found != nullptr
               ? int(host::copyCut(found->kind->name, name, std::size_t(std::max(size, 0))))
               : 0;
}

LONG GetWindowLongW(HWND window, int what)
{
    const Window* found = findWindow(window);
    return found != nullptr && what == GWL_STYLE ? LONG(found->style) : 0;
}

BOOL GetWindowRect(HWND window, RECT* rectangle)
{
    const Window* found = findWindow(window);
    if (found == nullptr)
    {
        return FALSE;
    }
    *rectangle = found->place;
    return TRUE;
}

BOOL SetWindowTextW(HWND window, LPCWSTR text)
{
    return SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) > 0;
}

int GetWindowTextW(HWND window, LPWSTR text, int size)
{
    return int(SendMessageW(window, WM_GETTEXT, WPARAM(std::max(size, 0)),
                            reinterpret_cast<LPARAM>(text)));
}

int GetWindowTextLengthW(HWND window)
{
    return int(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0));
}

BOOL EnableWindow(HWND window, BOOL enable)
{
    Window* found = findWindow(window);
    if (found == nullptr)
    {
        return FALSE;
    }
    const bool wasEnabled = found->isEnabled();
    found->put(WS_DISABLED, enable == FALSE);
    if (!found->isEnabled() && GetFocus() == window)
    {
        SetFocus(nullptr);
    }
    return !wasEnabled;
}

BOOL IsWindowEnabled(HWND window)
{
    const Window* found = findWindow(window);
    return found != nullptr && found->isEnabled();
}

BOOL ShowWindow(HWND window, int command)
{
    Window* found = findWindow(window);
    if (found == nullptr)
    {
        return FALSE;
    }
    const bool wasVisible = found->has(WS_VISIBLE);
    found->put(WS_VISIBLE, command != SW_HIDE);
    return wasVisible;
}

// A control is invisible in a hidden dialog. The visibility of a dialog does not depend on its
// owner.
BOOL IsWindowVisible(HWND window)
{
    const Window* found = findWindow(window);
    return found != nullptr && found->has(WS_VISIBLE) &&
           (!found->isChild() || IsWindowVisible(found->parent));
}

HWND SetFocus(HWND window)
{
    if (window != nullptr && !IsWindowEnabled(window))
    {
        return nullptr;
    }
    const HWND before = GetFocus();
    host::focusedWindow() = window;
    return before;
}

HWND GetFocus()
{
    return host::focusedWindow();
}

BOOL SetForegroundWindow(HWND window)
{
    return IsWindowEnabled(window);
}
