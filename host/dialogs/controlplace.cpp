#include "host/dialogs/controlplace.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "host/dialogs/controlview.h"
#include "host/dialogs/wnd.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"

namespace host
{
namespace
{
struct Spot
{
    LONG x;
    LONG y;
};

RECT placeOf(HWND control)
{
    RECT place = {};
    GetWindowRect(control, &place);
    return place;
}

Spot middleOf(const RECT& place)
{
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

bool holds(const RECT& place, Spot point)
{
    return point.x >= place.left && point.x < place.right && point.y >= place.top &&
           point.y < place.bottom;
}

std::vector<HWND> controlsOf(HWND dialog, ControlKind kind)
{
    std::vector<HWND> found;
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT))
    {
        if (kindOf(control) == kind && IsWindowVisible(control))
        {
            found.push_back(control);
        }
    }
    return found;
}

// Returns the frame around the control; null when no frame surrounds it.
HWND groupOf(HWND control)
{
    const std::vector<HWND> groups = controlsOf(GetParent(control), ControlKind::group);
    const Spot middle = middleOf(placeOf(control));
    const auto found =
        std::ranges::find_if(groups, [&](HWND group) { return holds(placeOf(group), middle); });
    return found != groups.end() ? *found : nullptr;
}

// Returns the rectangle around all lines in the control's own frame; no value without lines.
std::optional<RECT> figureBeside(HWND control)
{
    std::optional<RECT> figure;
    const HWND group = groupOf(control);
    for (const HWND line : controlsOf(GetParent(control), ControlKind::line))
    {
        const RECT place = placeOf(line);
        if (groupOf(line) != group)
        {
            continue;
        }
        const RECT before = figure.value_or(place);
        figure = RECT{std::min(before.left, place.left), std::min(before.top, place.top),
                      std::max(before.right, place.right), std::max(before.bottom, place.bottom)};
    }
    return figure;
}

std::wstring atEdge(std::wstring_view name, const RECT& figure, Spot middle)
{
    if (middle.y < figure.top)
    {
        return own(L"%1 (top)", {name});
    }
    if (middle.y >= figure.bottom)
    {
        return own(L"%1 (bottom)", {name});
    }
    return middle.x < figure.left     ? own(L"%1 (left)", {name})
           : middle.x >= figure.right ? own(L"%1 (right)", {name})
                                      : std::wstring(name);
}

bool isOneOfSeveral(HWND check, const std::wstring& text)
{
    const std::vector<HWND> checks = controlsOf(GetParent(check), ControlKind::check);
    return std::ranges::count_if(checks, [&](HWND other) { return windowText(other) == text; }) > 1;
}

std::wstring nameOfCheck(HWND check, const std::wstring& text)
{
    if (text.empty())
    {
        const HWND group = groupOf(check);
        return group != nullptr ? std::wstring(trimmed(windowText(group))) : text;
    }
    const auto figure = isOneOfSeveral(check, text) ? figureBeside(check) : std::nullopt;
    return figure ? atEdge(text, *figure, middleOf(placeOf(check))) : text;
}
}  // namespace

std::wstring shownName(HWND control)
{
    const std::wstring text = windowText(control);
    return kindOf(control) == ControlKind::check ? nameOfCheck(control, text) : text;
}
}  // namespace host
