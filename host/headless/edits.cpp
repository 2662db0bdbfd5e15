#include <algorithm>

#include "commctrl.h"
#include "host/headless/messages.h"

namespace host
{
namespace
{
// Sets the banner. The wParam of the message tells whether the banner stays while the edit has the
// focus; it does not matter here, because nothing is drawn.
LRESULT setBanner(Window& edit, LPARAM text)
{
    if (text == 0)
    {
        return FALSE;
    }
    edit.banner = textAt(text);
    return TRUE;
}

LRESULT getBanner(const Window& edit, WPARAM buffer, LPARAM size)
{
    copyCut(edit.banner, reinterpret_cast<LPWSTR>(buffer), std::size_t(std::max<LPARAM>(size, 0)));
    return edit.banner.empty() ? FALSE : TRUE;
}
}  // namespace

LRESULT editMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
        case WM_SETTEXT:
            anyMessage(edit, message, wParam, lParam);
            notifyDialog(edit, EN_CHANGE);
            return TRUE;
        case EM_SETCUEBANNER:
            return setBanner(edit, lParam);
        case EM_GETCUEBANNER:
            return getBanner(edit, wParam, lParam);
        default:
            return anyMessage(edit, message, wParam, lParam);
    }
}
}  // namespace host
