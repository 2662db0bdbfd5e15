#include "engine/worldlabels.h"

#include <cmath>

#include "engine/gridlabels.h"
#include "output/frame.h"

static AcGePoint3d cornerWcs(double xUcs, double yUcs, double zWcs)
{
    AcGePoint3d corner = toWcs(AcGePoint3d(xUcs, yUcs, 0));
    corner.z = zWcs;
    return corner;
}

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

static bool isOnWantedEdge(const AcGePoint3d& point, const FrameEdges& edges,
                           const LabelRequest& labels)
{
    const double tolerance = AcGeContext::gTol.equalPoint();
    return (labels.top && edges.top.distanceTo(point) <= tolerance) ||
           (labels.bottom && edges.bottom.distanceTo(point) <= tolerance) ||
           (labels.left && edges.left.distanceTo(point) <= tolerance) ||
           (labels.right && edges.right.distanceTo(point) <= tolerance);
}

static void orderPairs(AcGePoint3dArray& pairs, int axis)
{
    for (int i = 0; i + 1 < pairs.length(); i += 2)
    {
        if (toUcs(pairs[i + 1])[axis] < toUcs(pairs[i])[axis])
        {
            pairs.swap(i, i + 1);
        }
    }
}

// Whole quarter turns leave labels as they are.
static bool isViewTwisted()
{
    resbuf variable = resbuf();
    acedGetVar(L"VIEWTWIST", &variable);
    const double twist = variable.resval.rreal;
    return (twist > 0 && twist < labelPi / 2) || (twist > labelPi && twist < labelPi / 2 + labelPi);
}

static LabelPlace turnedOver(LabelPlace place)
{
    const bool endsHere = place.mode == AcDb::kTextRight;
    place.mode = endsHere ? AcDb::kTextLeft : AcDb::kTextRight;
    place.rotation += endsHere ? -labelPi : labelPi;
    return place;
}

// Exactly 0 for the line through the base point, or rounding would print it with a minus sign.
static double offsetFromBase(double coordinate, double base)
{
    const double offset = coordinate - base;
    return std::fabs(offset) < AcGeContext::gTol.equalPoint() ? 0 : offset;
}

static void addLabels(const GridRequest& request, const FrameEdges& edges,
                      const LabelRequest& labels, const AcGePoint3dArray& pairs, int axis,
                      bool isTurned, GridDrawing& drawing)
{
    for (int i = 0; i < pairs.length(); ++i)
    {
        if (!isOnWantedEdge(pairs[i], edges, labels))
        {
            continue;
        }
        const LabelPlace place = labelPlace(pairs, i, i % 2 == 0);
        addLabel(request, labels.prefix, offsetFromBase(pairs[i][axis], request.basePoint[axis]),
                 isTurned ? turnedOver(place) : place, drawing);
    }
}

void addWorldLabels(const GridRequest& request, const FrameEdges& edges, GridDrawing& drawing)
{
    orderPairs(drawing.xLabelPoints, 1);
    orderPairs(drawing.yLabelPoints, 0);
    addLabels(request, edges, request.xLabels, drawing.xLabelPoints, 0, isViewTwisted(), drawing);
    addLabels(request, edges, request.yLabels, drawing.yLabelPoints, 1, false, drawing);
}
