#include <cmath>
#include <vector>

#include "output/entities.h"
#include "output/frame.h"
#include "output/tolerance.h"
#include "tests/relations/plain.h"
#include "tests/relations/plainpoints.h"

namespace relations::plain
{
namespace
{
const int mostNodes = 1 << 25;

std::vector<double> positions(double low, double high, double base, double step, int limit)
{
    low -= step;
    high += step;
    const double steps = (low - base) / step;
    if (!(step > 0) || !isMeasurable(low) || !isMeasurable(high) || !(std::abs(steps) < 0x1p31))
    {
        return {};
    }
    std::vector<double> found;
    const double first = static_cast<int>(steps) * step + base;
    for (double at = first; (high - first) / step < limit && at <= high; at += step)
    {
        found.push_back(at);
        if (at + step == at || static_cast<int>(found.size()) > limit)
        {
            return {};
        }
    }
    return found;
}

// Appends the points where the line meets the outline.
bool meet(const Grid& grid, AcDbLine& line, AcDb::Intersect mode, AcGePoint3dArray& points)
{
    if (grid.inUcs)
    {
        line.transformBy(currentUcs());
    }
    return line.intersectWith(grid.boundary, mode, points) == Acad::eOk;
}

bool clipInWorld(const Grid& grid, AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& node)
{
    const bool startIsInside = pointInOutlinePoints(start, grid.outline) == 1;
    const bool endIsInside = pointInOutlinePoints(end, grid.outline) == 1;
    const bool nodeIsInside = pointInOutlinePoints(node, grid.outline) == 1;
    if (startIsInside && endIsInside)
    {
        return true;
    }
    AcDbLine line(start, end);
    AcGePoint3dArray cuts;
    if (!(startIsInside || endIsInside || nodeIsInside) ||
        !meet(grid, line, AcDb::kOnBothOperands, cuts))
    {
        return false;
    }
    if (cuts.isEmpty())
    {
        return true;
    }
    (startIsInside ? end : start) = cuts.first();
    if (!startIsInside && !endIsInside)
    {
        end = cuts.last();
    }
    return true;
}

bool clipInUcs(const Grid& grid, AcGePoint3d& start, AcGePoint3d& end)
{
    const bool startIsInside = pointInCurve(start, *grid.rectangle) == 1;
    const bool endIsInside = pointInCurve(end, *grid.rectangle) == 1;
    if (startIsInside == endIsInside)
    {
        return startIsInside;
    }
    AcDbLine line(start, end);
    AcGePoint3dArray cuts;
    if (!meet(grid, line, AcDb::kOnBothOperands, cuts))
    {
        return false;
    }
    if (!cuts.isEmpty())
    {
        (startIsInside ? end : start) = toUcs(cuts.first());
    }
    return true;
}

AcGePoint3dArray ends(const Grid& grid, AcDbObjectId id, const AcGePoint3d& node, unsigned along)
{
    AcGePoint3dArray found;
    if (grid.carriedOn == CarriedOn::piece)
    {
        AcDbObjectPointer<AcDbLine> line(id, AcDb::kForRead);
        line->intersectWith(grid.boundary, AcDb::kExtendThis, found);
        return found;
    }
    AcGePoint3d low = node;
    AcGePoint3d high = node;
    low[along] = grid.corner1[along];
    high[along] = grid.corner2[along];
    AcDbLine line(low, high);
    meet(grid, line, AcDb::kExtendThis, found);
    return found;
}

void noteEnds(const Grid& grid, AcGePoint3dArray pair, unsigned along, AcGePoint3dArray& noted)
{
    if (pair.length() != 2 || containsPoint(noted, pair[0]))
    {
        return;
    }
    // In the UCS grid, and where only rounding would decide, the points keep the order in which the
    // host returned them.
    const double ahead = toUcs(pair[0])[along] - toUcs(pair[1])[along];
    if (!grid.inUcs && ahead > AcGeContext::gTol.equalPoint())
    {
        pair.swap(0, 1);
    }
    noted.append(pair);
}

void drawPiece(Grid& grid, const AcGePoint3d& node, unsigned along, AcGePoint3dArray& noted)
{
    const double length =
        grid.isContinuous ? (along == 0 ? grid.HorStep : grid.VertStep) : grid.crossSize;
    AcGePoint3d start = node;
    AcGePoint3d end = node;
    start[along] -= length / 2;
    end[along] += length / 2;
    if (!(grid.inUcs ? clipInUcs(grid, start, end) : clipInWorld(grid, start, end, node)))
    {
        return;
    }
    const AcDbObjectId id =
        addLine(grid.inUcs, start, end, grid.color, nullptr, nullptr, ACDB_MODEL_SPACE);
    if (id.isNull())
    {
        return;
    }
    if (grid.needText)
    {
        noteEnds(grid, ends(grid, id, node, along), along, noted);
    }
    grid.add(id);
}

}  // namespace

void drawNodes(Grid& grid, double elevation)
{
    if (!grid.isContinuous && !isMeasurable(grid.crossSize))
    {
        return;
    }
    const auto xs = positions(grid.corner1.x, grid.corner2.x, grid.base.x, grid.HorStep, mostNodes);
    const int left = xs.empty() ? 0 : mostNodes / static_cast<int>(xs.size());
    const auto ys = positions(grid.corner1.y, grid.corner2.y, grid.base.y, grid.VertStep, left);
    for (const double x : xs)
    {
        for (const double y : ys)
        {
            drawPiece(grid, AcGePoint3d(x, y, elevation), 1, grid.xPoints);
            drawPiece(grid, AcGePoint3d(x, y, elevation), 0, grid.yPoints);
        }
    }
}

}  // namespace relations::plain
