#include "host/headless/windowtree.h"

#include <algorithm>
#include <map>

namespace host
{
namespace
{
// Returns the windows in the order in which they were made, because handles only grow. The map is
// never destroyed, because modules are unloaded while the process ends.
std::map<HWND, Window>& windows()
{
    static std::map<HWND, Window>& all = *new std::map<HWND, Window>;
    return all;
}

HWND firstBelow(HWND parent)
{
    const auto found = std::ranges::find_if(
        windows(), [parent](const auto& entry) { return entry.second.parent == parent; });
    return found != windows().end() ? found->first : nullptr;
}
}  // namespace

HWND addWindow(const Window& window)
{
    static UINT_PTR last = 0x10000;
    const HWND handle = reinterpret_cast<HWND>(++last);
    windows()[handle] = window;
    windows()[handle].handle = handle;
    return handle;
}

void removeWindow(HWND window)
{
    if (windows().erase(window) == 0)
    {
        return;
    }
    if (focusedWindow() == window)
    {
        focusedWindow() = nullptr;
    }
    while (const HWND below = firstBelow(window))
    {
        removeWindow(below);
    }
}

Window* findWindow(HWND window)
{
    const auto found = windows().find(window);
    return found != windows().end() ? &found->second : nullptr;
}

std::vector<HWND> controlsOf(HWND dialog)
{
    std::vector<HWND> controls;
    for (const auto& [handle, window] : windows())
    {
        if (window.parent == dialog && window.isChild())
        {
            controls.push_back(handle);
        }
    }
    return controls;
}

std::size_t openWindows()
{
    return windows().size();
}

HWND& focusedWindow()
{
    static HWND focused = nullptr;
    return focused;
}
}  // namespace host
