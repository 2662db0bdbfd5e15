#include "engine/ucsgrid.h"

#include "engine/gridlabels.h"
#include "engine/pieces.h"
#include "output/entities.h"
#include "output/frame.h"

namespace
{
void convertPoints(GridRequest& request)
{
    request.corner1 = toUcs(request.corner1);
    request.corner2 = toUcs(request.corner2);
    request.options.basePoint = toUcs(request.options.basePoint);
    sortCorners(request.corner1, request.corner2);
}

// Draws the labels of one axis. Vertical lines end at the top and the bottom edge, horizontal lines
// at the left and the right edge. The function therefore ignores left and right for X, top and
// bottom for Y, and the view twist.
void addLabels(const GridRequest& request, int axis, const AcGePoint3dArray& pairs,
               AcDbObjectIdArray& made)
{
    const WantedEdges wanted = wantedEdges(request.options, axis);
    // The host returns the far end of a line first, which is the upper or the right end.
    const bool isWanted[] = {axis == 0 ? wanted.top : wanted.right,
                             axis == 0 ? wanted.bottom : wanted.left};
    for (int i = 0; i < pairs.length(); ++i)
    {
        if (isWanted[i % 2])
        {
            const LabelPlace place = labelPlace(pairs, i, i % 2 != 0);
            // Near the base the value is not set to exactly 0, unlike in the world grid. The labels
            // show the computed value, and filed drawings may say "-0".
            const double value = place.anchor[axis] - request.options.basePoint[axis];
            addLabel(request, axis, value, place, made);
        }
    }
}

bool drawWithin(AcDbObjectId rectangleId, const GridRequest& request, const AcDbEntity& boundary,
                AcDbObjectIdArray& made)
{
    AcDbObjectPointer<AcDb2dPolyline> rectangle(rectangleId, AcDb::kForRead);
    if (rectangle.openStatus() != Acad::eOk)
    {
        return false;
    }
    AcGePoint3dArray corners;
    rectangle->getStretchPoints(corners);
    const CurveArea area(*rectangle.object());
    const PieceClipper clipper(boundary, corners, &area, 0, AcGeContext::gTol.equalPoint());
    const GridLines drawn = drawPieces(request, gridLines(request), clipper, made);
    if (request.options.needText != 0)
    {
        addLabels(request, 0, labelPoints(request, drawn.x, 0, clipper), made);
        addLabels(request, 1, labelPoints(request, drawn.y, 1, clipper), made);
    }
    return true;
}
}  // namespace

bool drawUcsGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made)
{
    convertPoints(request);
    const AcDbObjectId rectangleId = addHiddenRectangle(request.corner1, request.corner2);
    const bool isDrawn = drawWithin(rectangleId, request, boundary, made);
    if (isDrawn)
    {
        eraseEntity(rectangleId);
    }
    return isDrawn;
}
