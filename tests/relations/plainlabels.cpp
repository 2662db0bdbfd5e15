#include <cmath>

#include "output/frame.h"
#include "output/labels.h"
#include "output/numbers.h"
#include "tests/relations/plain.h"

namespace relations::plain
{
namespace
{
const double pi = 3.14159265359;

struct Place
{
    AcGePoint3d anchor;  // [ucs]
    double angle;        // the angle towards the other point of the pair
};

Place placeOf(const AcGePoint3dArray& pairs, int i)
{
    const AcGePoint3d here = toUcs(pairs[i]);
    const AcGePoint3d there = toUcs(pairs[i % 2 == 0 ? i + 1 : i - 1]);
    return {here, acutAngle(asDblArray(here), asDblArray(there))};
}

void addLabel(Grid& grid, const CString& prefix, double value, const AcGePoint3d& anchor,
              double rotation, AcDb::TextHorzMode mode)
{
    const CString text = prefix + formatReal(value, grid.decimals);
    grid.add(addLabelText(true, text, anchor, grid.heightText, rotation, grid.color, grid.style,
                          mode, AcDb::kTextBottom, ACDB_MODEL_SPACE));
}

bool isWanted(const Labels& labels, const Edges& edges, const AcGePoint3d& point)
{
    const double tolerance = AcGeContext::gTol.equalPoint();
    const auto isOn = [&](const AcGeLineSeg3d& edge)
    { return edge.distanceTo(point) <= tolerance; };
    return (labels.top && isOn(edges.top)) || (labels.bottom && isOn(edges.bottom)) ||
           (labels.left && isOn(edges.left)) || (labels.right && isOn(edges.right));
}

bool isTwisted()
{
    resbuf read = resbuf();
    acedGetVar(L"VIEWTWIST", &read);
    const double twist = read.resval.rreal;
    return (0 < twist && twist < pi / 2) || (pi < twist && twist < pi / 2 + pi);
}

void labelInWorld(Grid& grid, const Edges& edges, const Labels& labels,
                  const AcGePoint3dArray& pairs, unsigned axis, bool isTurned)
{
    for (int i = 0; i < pairs.length(); ++i)
    {
        if (!isWanted(labels, edges, pairs[i]))
        {
            continue;
        }
        const Place place = placeOf(pairs, i);
        bool startsHere = i % 2 == 0;
        double rotation = startsHere ? place.angle : pi + place.angle;
        if (isTurned)
        {
            rotation += startsHere ? pi : -pi;
            startsHere = !startsHere;
        }
        const double value = pairs[i][axis] - grid.base[axis];
        const bool isNought = std::abs(value) < AcGeContext::gTol.equalPoint();
        addLabel(grid, labels.prefix, isNought ? 0 : value, place.anchor, rotation,
                 startsHere ? AcDb::kTextLeft : AcDb::kTextRight);
    }
}

void labelInUcs(Grid& grid, const Labels& labels, const AcGePoint3dArray& pairs, unsigned axis,
                bool atFirst, bool atSecond)
{
    for (int i = 0; i < pairs.length(); ++i)
    {
        const bool isFirst = i % 2 == 0;
        const Place place = placeOf(pairs, i);
        if (isFirst ? atFirst : atSecond)
        {
            addLabel(grid, labels.prefix, place.anchor[axis] - grid.base[axis], place.anchor,
                     isFirst ? pi + place.angle : place.angle,
                     isFirst ? AcDb::kTextRight : AcDb::kTextLeft);
        }
    }
}
}  // namespace

Edges edgesOf(const Grid& grid)
{
    AcGePoint3d low = toUcs(grid.corner1);
    AcGePoint3d high = toUcs(grid.corner2);
    orderCorners(low, high);
    const auto corner = [&](double x, double y)
    {
        AcGePoint3d wcs = toWcs(AcGePoint3d(x, y, 0));
        wcs.z = grid.corner1.z;
        return wcs;
    };
    const AcGePoint3d topLeft = corner(low.x, high.y), topRight = corner(high.x, high.y);
    const AcGePoint3d bottomLeft = corner(low.x, low.y), bottomRight = corner(high.x, low.y);
    return {{topLeft, topRight},
            {bottomLeft, bottomRight},
            {bottomLeft, topLeft},
            {bottomRight, topRight}};
}

void labelInWorld(Grid& grid, const Edges& edges)
{
    labelInWorld(grid, edges, grid.x, grid.xPoints, 0, isTwisted());
    labelInWorld(grid, edges, grid.y, grid.yPoints, 1, false);
}

void labelInUcs(Grid& grid)
{
    // The upper end and the right end come first.
    labelInUcs(grid, grid.x, grid.xPoints, 0, grid.x.top, grid.x.bottom);
    labelInUcs(grid, grid.y, grid.yPoints, 1, grid.y.right, grid.y.left);
}
}  // namespace relations::plain
