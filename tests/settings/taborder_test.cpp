#include "tests/settings/taborder.h"

#include <gtest/gtest.h>

#include "host/dialogs/modalloop.h"
#include "tests/settings/dialogrun.h"

namespace
{
bool isTabStop(HWND control)
{
    const DWORD style = DWORD(GetWindowLongW(control, GWL_STYLE));
    return (style & WS_TABSTOP) != 0 && IsWindowEnabled(control) && IsWindowVisible(control);
}

std::vector<int> tabStopsOf(HWND dialog)
{
    std::vector<int> stops;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        if (isTabStop(child))
        {
            stops.push_back(GetDlgCtrlID(child));
        }
    }
    return stops;
}

// The order that a person meets at a screen, from the same table: tests/windows/native.
TEST(TabKey, stopsAtTheControlsInTheOrderOfTheEye)
{
    for (const TabOrder& order : tabOrders)
    {
        int first = 0;
        std::vector<int> stops;
        const host::DialogObserver observer(
            [&](HWND dialog)
            {
                first = GetDlgCtrlID(GetFocus());
                stops = tabStopsOf(dialog);
            });
        DialogRun{.settings = order.settings()}.with({"^C"});
        EXPECT_EQ(stops, order.stops);
        EXPECT_EQ(first, order.stops.front());
    }
}
}  // namespace
