// Tests what follows after a value was refused, and the layout of the dialog.
#include <gtest/gtest.h>

#include <cstdlib>

#include "host/dialogs/modalloop.h"
#include "resources/resource.h"
#include "tests/settings/dialogrun.h"

namespace
{
void observed(const std::string& lines, const std::function<void(HWND dialog)>& look)
{
    const host::DialogObserver observer(look);
    DialogRun{}.with(typed(lines));
}

struct Refusal
{
    const char* lines;
    int focus;
};

const Refusal refusals[] = {
    {"set 107 0 | <Enter> | ^C", IDC_VERT_STEP},
    {"set 109 -5 | <Enter> | ^C", IDC_HOR_STEP},
    {"click 116 | set 117 x | <Enter> | ^C", IDC_CROSS_SIZE},
    {"check 154 on | set 132 | <Enter> | ^C", IDC_TEXT_HEIGHT},
    // An edit that is grey takes no keys: what was pressed keeps them.
    {"check 154 on | set 132 0 | check 154 off | <Enter> | ^C", IDOK},
};

TEST(SettingsRefusals, bringTheUserToTheEditThatIsToBeSetRight)
{
    for (const Refusal& refusal : refusals)
    {
        int focus = 0;
        observed(refusal.lines, [&](HWND) { focus = GetDlgCtrlID(GetFocus()); });
        EXPECT_EQ(focus, refusal.focus) << refusal.lines;
    }
}

RECT placeOf(HWND dialog, int control)
{
    RECT place = {};
    GetWindowRect(GetDlgItem(dialog, control), &place);
    return place;
}

// Tells whether the values differ by at most one pixel, because the units of the template are
// rounded to pixels.
bool isNear(LONG one, LONG other)
{
    return std::abs(one - other) <= 1;
}

TEST(FrameOfTheDialog, hasCellsOfOneHeightAndVerticalsThatEndAtItsBottomLine)
{
    const auto look = [](HWND dialog)
    {
        const LONG top = placeOf(dialog, IDC_FRAME_TOP).top;
        const LONG cell = placeOf(dialog, IDC_FRAME_ROW_1).top - top;
        const RECT bottom = placeOf(dialog, IDC_FRAME_BOTTOM);
        EXPECT_TRUE(isNear(bottom.top, top + 3 * cell)) << top << " " << cell << " " << bottom.top;
        for (const int line : {IDC_FRAME_LEFT, IDC_FRAME_RIGHT, IDC_FRAME_COLUMN_1,
                               IDC_FRAME_COLUMN_2, IDC_FRAME_COLUMN_3})
        {
            EXPECT_EQ(placeOf(dialog, line).top, top) << line;
            const LONG end = placeOf(dialog, line).bottom;
            EXPECT_TRUE(end >= bottom.top && end <= bottom.bottom) << line << " " << end;
        }
    };
    observed("^C", look);
}
}  // namespace
