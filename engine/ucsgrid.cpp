#include "engine/ucsgrid.h"

#include "engine/cleararea.h"
#include "engine/gridlabels.h"
#include "engine/pieces.h"
#include "engine/pointtests.h"
#include "output/entities.h"
#include "output/frame.h"

namespace
{
// Tests ends against a rectangle whose coordinates are [ucs], cuts with the boundary, which is
// [wcs].
class UcsClipper : public PieceClipper
{
public:
    // rectangle  [borrowed], open for read while this lives, from corner1 to corner2
    UcsClipper(const AcDbEntity& boundary, const AcDbCurve& rectangle, const AcGePoint3d& corner1,
               const AcGePoint3d& corner2)
        : PieceClipper(boundary, true, currentUcs(), 0),
          m_area(rectangle),
          m_clear(AcGePoint3d(corner1.x, corner1.y, 0), AcGePoint3d(corner2.x, corner1.y, 0),
                  AcGePoint3d(corner2.x, corner2.y, 0), AcGePoint3d(corner1.x, corner2.y, 0),
                  CurveArea::widestTolerance())
    {
    }

    virtual bool clip(Piece& piece, const AcGePoint3d& node) const override;

private:
    bool isInside(const AcGePoint3d& point) const
    {
        const int place = m_clear.locate(point);
        return (place != 0 ? place : m_area.locate(point)) == 1;
    }

    const CurveArea m_area;
    const ClearArea m_clear;
};
}  // namespace

// The node is not asked: a cross with only its centre inside is dropped here, unlike in the world
// grid. Kept for the drawings that are checked against earlier ones.
bool UcsClipper::clip(Piece& piece, const AcGePoint3d&) const
{
    const bool startIsInside = isInside(piece.start);
    const bool endIsInside = isInside(piece.end);
    if (startIsInside == endIsInside)
    {
        return startIsInside;
    }
    AcGePoint3dArray cuts;
    if (!meetOutline(piece, AcDb::kOnBothOperands, cuts))
    {
        return false;
    }
    if (!cuts.isEmpty())
    {
        (startIsInside ? piece.end : piece.start) = toUcs(cuts.first());
    }
    return true;
}

static void convertPoints(GridRequest& request)
{
    request.corner1 = toUcs(request.corner1);
    request.corner2 = toUcs(request.corner2);
    request.basePoint = toUcs(request.basePoint);
    sortCorners(request.corner1, request.corner2);
}

static bool drawPiecesWithin(AcDbObjectId rectangleId, const GridRequest& request,
                             const AcDbEntity& boundary, GridDrawing& drawing)
{
    AcDbObjectPointer<AcDb2dPolyline> rectangle(rectangleId, AcDb::kForRead);
    if (rectangle.openStatus() != Acad::eOk)
    {
        return false;
    }
    const GridLines lines = gridLines(request.corner1, request.corner2, request.basePoint,
                                      request.HorStep, request.VertStep);
    const UcsClipper clipper(boundary, *rectangle.object(), request.corner1, request.corner2);
    drawPieces(request, lines, clipper, drawing);
    return true;
}

// The host gives the far end of a line first: the upper of a vertical, the right of a horizontal
// one.
static void addLabels(const GridRequest& request, const CString& prefix,
                      const AcGePoint3dArray& pairs, int axis, bool atFarEnd, bool atNearEnd,
                      GridDrawing& drawing)
{
    for (int i = 0; i < pairs.length(); ++i)
    {
        const bool isFarEnd = i % 2 == 0;
        if (isFarEnd ? !atFarEnd : !atNearEnd)
        {
            continue;
        }
        const LabelPlace place = labelPlace(pairs, i, !isFarEnd);
        // Not brought to exactly 0 near the base, unlike in the world grid: labels here show what
        // was computed, and drawings are compared with earlier ones that may say "-0".
        const double value = place.anchor[axis] - request.basePoint[axis];
        addLabel(request, prefix, value, place, drawing);
    }
}

// Vertical lines end at the top and the bottom edge, horizontal ones at the left and the right. So
// left and right for X, top and bottom for Y are not asked, and neither is the view twist.
static void addUcsLabels(const GridRequest& request, GridDrawing& drawing)
{
    const LabelRequest& x = request.xLabels;
    const LabelRequest& y = request.yLabels;
    addLabels(request, x.prefix, drawing.xLabelPoints, 0, x.top, x.bottom, drawing);
    addLabels(request, y.prefix, drawing.yLabelPoints, 1, y.right, y.left, drawing);
}

bool drawUcsGrid(GridRequest request, const AcDbEntity& boundary, GridDrawing& drawing)
{
    convertPoints(request);
    const AcDbObjectId rectangleId = addHiddenRectangle(request.corner1, request.corner2);
    if (!drawPiecesWithin(rectangleId, request, boundary, drawing))
    {
        return false;
    }
    if (request.needText)
    {
        addUcsLabels(request, drawing);
    }
    eraseEntity(rectangleId);
    return true;
}
