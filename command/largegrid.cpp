#include "command/largegrid.h"

#include <cmath>

namespace
{
bool isLarge(double extent, double step)
{
    return std::fabs(extent / step) > 50.0;
}

// The height speaks of vertical lines and the width of horizontal ones: a "vertical" line is one
// that the vertical step spaces, in the words the users know.
const wchar_t* question(bool vertical, bool horizontal, const Messages& messages)
{
    if (vertical && horizontal)
    {
        return messages.manyOfBoth;
    }
    return vertical ? messages.manyVertical : messages.manyHorizontal;
}
}  // namespace

bool mayBuildGrid(double gridWidth, double gridHeight, const GridSettings& settings,
                  const Messages& messages)
{
    const bool vertical = isLarge(gridHeight, settings.VertStep);
    const bool horizontal = isLarge(gridWidth, settings.HorStep);
    if (!vertical && !horizontal)
    {
        return true;
    }
    return MessageBoxW(adsw_acadMainWnd(), question(vertical, horizontal, messages),
                       messages.questionCaption, MB_YESNO) == IDYES;
}
