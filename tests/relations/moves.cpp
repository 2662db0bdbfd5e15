#include "tests/relations/moves.h"

#include <algorithm>

namespace relations
{
namespace
{
GridCase carried(const GridCase& asked, const AcGeMatrix3d& move)
{
    GridCase moved = asked;
    moved.ucs = move * asked.ucs;
    std::ranges::for_each(moved.outline, [&](AcGePoint3d& corner) { corner.transformBy(move); });
    moved.base.transformBy(move);
    return moved;
}

GridCase shifted(const GridCase& asked, Chance& chance)
{
    const double far = chance.oneIn(2) ? 1000 : 1e7;
    return carried(asked,
                   AcGeMatrix3d::translation({chance.between(-far, far), chance.between(-far, far),
                                              chance.between(-300, 300)}));
}

Picture seenShifted(const Picture& picture, bool)
{
    return picture;
}

GridCase turned(const GridCase& asked, Chance& chance)
{
    if (asked.alongUcs)
    {
        return carried(asked, turnInSpace(chance));
    }
    GridCase moved = carried(asked, turnOfXY(1));
    std::swap(moved.steps[0], moved.steps[1]);
    std::swap(moved.xEdges, moved.yEdges);
    return moved;
}

std::vector<Part> reversed(const std::vector<Part>& parts)
{
    std::vector<Part> turned;
    std::transform(parts.rbegin(), parts.rend(), std::back_inserter(turned),
                   [](const Part& part) {
                       return Part{-part.high, -part.low};
                   });
    return turned;
}

// Returns the picture after a quarter turn. Vertical lines become horizontal lines with reversed
// ends. Horizontal lines become vertical lines on the other side of the base point.
Picture seenTurned(const Picture& picture, bool alongUcs)
{
    if (alongUcs)
    {
        return picture;
    }
    Picture turned;
    for (const auto& [name, parts] : picture.lines)
    {
        const auto [direction, index] = name;
        direction == vertical ? turned.lines[{horizontal, index}] = reversed(parts)
                              : turned.lines[{vertical, -index}] = parts;
    }
    for (const auto& [name, value] : picture.labels)
    {
        const auto [direction, index, atHighEnd] = name;
        direction == vertical ? turned.labels[{horizontal, index, !atHighEnd}] = value
                              : turned.labels[{vertical, -index, atHighEnd}] = -value;
    }
    return turned;
}

GridCase mirrored(const GridCase& asked, Chance&)
{
    AcGeMatrix3d mirror;
    mirror.entry[0][0] = -1;
    GridCase moved = carried(asked, mirror);
    // A UCS is never left-handed, so its X axis is reversed once more.
    moved.ucs = moved.ucs * mirror;
    std::swap(moved.xEdges[2], moved.xEdges[3]);
    std::swap(moved.yEdges[2], moved.yEdges[3]);
    return moved;
}

Picture seenMirrored(const Picture& picture, bool)
{
    Picture mirrored;
    for (const auto& [name, parts] : picture.lines)
    {
        const auto [direction, index] = name;
        direction == vertical ? mirrored.lines[{vertical, -index}] = parts
                              : mirrored.lines[{horizontal, index}] = reversed(parts);
    }
    for (const auto& [name, value] : picture.labels)
    {
        const auto [direction, index, atHighEnd] = name;
        direction == vertical ? mirrored.labels[{vertical, -index, atHighEnd}] = -value
                              : mirrored.labels[{horizontal, index, !atHighEnd}] = value;
    }
    return mirrored;
}
}  // namespace

const Move moves[3] = {
    {"shifted", shifted, seenShifted},
    {"turned", turned, seenTurned},
    {"mirrored", mirrored, seenMirrored},
};
}  // namespace relations
