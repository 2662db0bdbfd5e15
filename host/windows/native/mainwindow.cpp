#include "acedads.h"

// The window is never shown. It owns the windows that the module shows.
HWND adsw_acadMainWnd()
{
    static const HWND window =
        CreateWindowExW(0, L"Static", L"arxhost", WS_OVERLAPPED, 0, 0, 0, 0, nullptr, nullptr,
                        GetModuleHandleW(nullptr), nullptr);
    return window;
}
