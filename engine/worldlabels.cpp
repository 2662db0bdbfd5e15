#include "engine/worldlabels.h"

#include <cmath>

#include "engine/gridlabels.h"
#include "output/frame.h"

namespace
{
AcGePoint3d cornerWcs(double xUcs, double yUcs, double zWcs)
{
    AcGePoint3d corner = toWcs(AcGePoint3d(xUcs, yUcs, 0));
    corner.z = zWcs;
    return corner;
}

}  // namespace

FrameEdges frameEdges(const GridRequest& request)
{
    AcGePoint3d low = toUcs(request.corner1);
    AcGePoint3d high = toUcs(request.corner2);
    sortCorners(low, high);
    const double z = request.corner1.z;
    const AcGePoint3d topLeft = cornerWcs(low.x, high.y, z);
    const AcGePoint3d topRight = cornerWcs(high.x, high.y, z);
    const AcGePoint3d bottomLeft = cornerWcs(low.x, low.y, z);
    const AcGePoint3d bottomRight = cornerWcs(high.x, low.y, z);
    const FrameEdges edges = {
        AcGeLineSeg3d(topLeft, topRight), AcGeLineSeg3d(bottomLeft, bottomRight),
        AcGeLineSeg3d(bottomLeft, topLeft), AcGeLineSeg3d(bottomRight, topRight)};
    return edges;
}

namespace
{
bool isOnWantedEdge(const AcGePoint3d& point, const FrameEdges& edges, const WantedEdges& wanted)
{
    const double tolerance = AcGeContext::gTol.equalPoint();
    return (wanted.top && edges.top.distanceTo(point) <= tolerance) ||
           (wanted.bottom && edges.bottom.distanceTo(point) <= tolerance) ||
           (wanted.left && edges.left.distanceTo(point) <= tolerance) ||
           (wanted.right && edges.right.distanceTo(point) <= tolerance);
}

// Sorts the two points of each pair along the axis of the UCS. In a view that is turned by a
// quarter both ends of a line are equally high, and rounding alone would decide, differently for
// each line. Such pairs keep the order of the host, so that all lines of a sheet are treated in the
// same way.
void orderPairs(AcGePoint3dArray& pairs, int axis)
{
    const double tolerance = AcGeContext::gTol.equalPoint();
    for (int i = 0; i + 1 < pairs.length(); i += 2)
    {
        if (toUcs(pairs[i])[axis] - toUcs(pairs[i + 1])[axis] > tolerance)
        {
            pairs.swap(i, i + 1);
        }
    }
}

// Returns whether the view twist lies in the first or the third quarter. The comparison excludes
// the bounds, but they are multiples of labelPi and a little larger than the exact angles. A view
// turned by exactly 90 or 270 degrees therefore counts as twisted; a view turned by 0 or 180 does
// not.
bool isViewTwisted()
{
    resbuf variable = resbuf();
    acedGetVar(L"VIEWTWIST", &variable);
    const double twist = variable.resval.rreal;
    return (twist > 0 && twist < labelPi / 2) || (twist > labelPi && twist < labelPi / 2 + labelPi);
}

LabelPlace turnedOver(LabelPlace place)
{
    const bool endsHere = place.mode == AcDb::kTextRight;
    place.mode = endsHere ? AcDb::kTextLeft : AcDb::kTextRight;
    place.rotation += endsHere ? -labelPi : labelPi;
    return place;
}

// Returns the signed distance from the base. The result is exactly 0 for the line through the base
// point; otherwise rounding could print it with a minus sign.
double offsetFromBase(double coordinate, double base)
{
    const double offset = coordinate - base;
    return std::fabs(offset) < AcGeContext::gTol.equalPoint() ? 0 : offset;
}

}  // namespace

void addWorldLabels(const GridRequest& request, const FrameEdges& edges, int axis,
                    AcGePoint3dArray pairs, AcDbObjectIdArray& made)
{
    const WantedEdges wanted = wantedEdges(request.options, axis);
    const bool isTurned = axis == 0 && isViewTwisted();
    orderPairs(pairs, 1 - axis);
    for (int i = 0; i < pairs.length(); ++i)
    {
        if (isOnWantedEdge(pairs[i], edges, wanted))
        {
            const LabelPlace place = labelPlace(pairs, i, i % 2 == 0);
            const double value = offsetFromBase(pairs[i][axis], request.options.basePoint[axis]);
            addLabel(request, axis, value, isTurned ? turnedOver(place) : place, made);
        }
    }
}
