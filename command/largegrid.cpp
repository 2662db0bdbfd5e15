#include "command/largegrid.h"

#include "settings/manylines.h"

bool mayBuildGrid(double gridWidth, double gridHeight, const GridSettings& settings,
                  const CString& localeName)
{
    // The texts call lines vertical when the vertical step spaces them along the height. The users
    // know these words, so the words stay.
    const bool vertical = isManyLines(gridHeight, settings.VertStep);
    const bool horizontal = isManyLines(gridWidth, settings.HorStep);
    return (!vertical && !horizontal) || userAllowsManyLines(vertical, horizontal, localeName);
}
