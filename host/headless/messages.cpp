#include "host/headless/messages.h"

namespace host
{
LRESULT anyMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
        case WM_SETTEXT:
            window.text = textAt(lParam);
            return TRUE;
        case WM_GETTEXT:
            return copyCut(window.text, reinterpret_cast<LPWSTR>(lParam), wParam);
        case WM_GETTEXTLENGTH:
            return LRESULT(window.text.size());
        default:
            return 0;
    }
}

void notifyDialog(const Window& control, WORD code)
{
    SendMessageW(control.parent, WM_COMMAND, MAKEWPARAM(control.id, code),
                 reinterpret_cast<LPARAM>(control.handle));
}

std::wstring textAt(LPARAM text)
{
    return text != 0 ? reinterpret_cast<LPCWSTR>(text) : L"";
}

LRESULT copyCut(const std::wstring& from, LPWSTR to, std::size_t size)
{
    if (to == nullptr || size == 0)
    {
        return 0;
    }
    const std::size_t length = from.copy(to, size - 1);
    to[length] = L'\0';
    return LRESULT(length);
}
}  // namespace host

LRESULT SendMessageW(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    host::Window* const window = host::findWindow(handle);
    return window != nullptr ? window->kind->answer(*window, message, wParam, lParam) : 0;
}
