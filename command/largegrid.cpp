#include "command/largegrid.h"

#include "settings/manylines.h"

bool mayBuildGrid(double gridWidth, double gridHeight, const GridSettings& settings,
                  const CString& localeName)
{
    // The height goes with the vertical lines and the width with the horizontal ones, in the words
    // the users know.
    const bool vertical = isManyLines(gridHeight, settings.VertStep);
    const bool horizontal = isManyLines(gridWidth, settings.HorStep);
    return (!vertical && !horizontal) || userAllowsManyLines(vertical, horizontal, localeName);
}
