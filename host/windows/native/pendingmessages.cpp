#include "host/windows/pendingmessages.h"

#include "windows.h"

namespace host
{
bool dispatchPendingMessages()
{
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
    {
        const HWND root = message.hwnd != nullptr ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
        if (root == nullptr || !IsDialogMessageW(root, &message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return true;
}
}  // namespace host
