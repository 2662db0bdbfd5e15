#include "host/windows/messagebox.h"

#include <utility>

#include "windows.h"

namespace
{
host::MessageBoxHandler& handler()
{
    static host::MessageBoxHandler installed;
    return installed;
}
}  // namespace

void host::setMessageBoxHandler(MessageBoxHandler newHandler)
{
    handler() = std::move(newHandler);
}

bool host::alertOverDialog(const std::wstring&)
{
    return false;
}

int MessageBoxW(HWND, LPCWSTR text, LPCWSTR caption, UINT type)
{
    if (!handler())
    {
        return 0;
    }
    return handler()({.text = text != nullptr ? text : L"",
                      .caption = caption != nullptr ? caption : L"Error",
                      .type = type});
}
