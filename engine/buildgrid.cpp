#include "engine/buildgrid.h"

#include "engine/labels.h"
#include "engine/pieces.h"
#include "output/entities.h"
#include "output/frame.h"
#include "output/labels.h"
#include "output/language.h"
#include "output/tolerance.h"

namespace
{
// Returns equalPoint, or the rounding of the largest coordinate in the grid if that is coarser.
double pointTolerance(const GridRequest& request)
{
    const AcGePoint3d& base = request.options.basePoint;
    const AcGePoint3d points[] = {toWcs(AcGePoint3d::kOrigin), request.corner1, request.corner2,
                                  isMeasurable(base) ? base : request.corner1};
    double largest = 0;
    for (int i = 0; i < 4; ++i)
    {
        const double inUcs = largestCoordinate(toUcs(points[i]));
        largest = (std::max)((std::max)(largest, inUcs), largestCoordinate(points[i]));
    }
    return atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
}

void addTiltedText(const GridRequest& request, AcDbObjectIdArray& made)
{
    const ACHAR* text = isRussian(request.localeName)
                            ? L"Плоскость рисования не параллельна плоскости XY в МСК"
                            : L"Current plane is not parallel to XY plane in WCS";
    const AcGePoint3d middle = request.corner1 + (request.corner2 - request.corner1) / 2;
    const double height = std::fabs(request.corner2.x - request.corner1.x) / 30.0;
    addMade(made, addLabelText(true, text, toUcs(middle), height, 0, request.color(),
                               request.options.textStyleName, AcDb::kTextMid, AcDb::kTextVertMid,
                               ACDB_MODEL_SPACE));
}

// Draws the grid along the axes of the world within the boundary, which is open for read.
//
// If the corners have different elevations, the function draws one text in the middle instead, in
// the user's language. The user looks there anyway, and the text is grouped or erased like a grid.
// If the boundary has fewer than four points, the function draws nothing.
void drawWorldGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made)
{
    if (std::fabs(request.corner1.z - request.corner2.z) > AcGeContext::gTol.equalPoint())
    {
        addTiltedText(request, made);
        return;
    }
    const GridRequest picked = request;
    request.corner2.z = request.corner1.z;
    AcGePoint3dArray outline;
    boundary.getStretchPoints(outline);
    sortCorners(request.corner1, request.corner2);
    for (int i = 0; i < outline.length(); ++i)
    {
        AcGePoint3d points[] = {outline[i], outline[i]};  // one to compare with each corner
        sortCorners(request.corner1, points[0]);
        sortCorners(points[1], request.corner2);
    }
    // The outline may reach beyond the picked corners, to coordinates with a coarser rounding.
    const double tolerance = atLeastRounding(
        AcGeContext::gTol.equalPoint(),
        (std::max)(largestCoordinate(request.corner1), largestCoordinate(request.corner2)));
    const PieceClipper clipper(boundary, nullptr, outline, tolerance);
    const GridLines drawn = drawPieces(request, gridLines(request), clipper, made);
    for (int axis = 0; axis < 2; ++axis)
    {
        addWorldLabels(picked, axis, labelPoints(request, drawn, axis, clipper), made);
    }
}

// Draws the grid along the axes of the current UCS within the boundary, which is open for read.
//
// Points are tested against an auxiliary rectangle, which is invisible and is erased at the end.
// Returns true when the grid is drawn. Returns false when the host refuses to make or to open the
// rectangle; then no grid is drawn, and a rectangle that cannot be opened stays in the drawing.
bool drawUcsGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made)
{
    request.corner1 = toUcs(request.corner1);
    request.corner2 = toUcs(request.corner2);
    request.options.basePoint = toUcs(request.options.basePoint);
    request.corner1.z = request.corner2.z = 0;
    sortCorners(request.corner1, request.corner2);
    const AcDbObjectId rectangleId = addHiddenRectangle(request.corner1, request.corner2);
    AcDbObjectPointer<AcDb2dPolyline> rectangle(rectangleId, AcDb::kForRead);
    if (rectangle.openStatus() != Acad::eOk)
    {
        return false;
    }
    AcGePoint3dArray outline;
    rectangle->getStretchPoints(outline);
    const PieceClipper clipper(boundary, rectangle.object(), outline,
                               AcGeContext::gTol.equalPoint());
    const GridLines drawn = drawPieces(request, gridLines(request), clipper, made);
    for (int axis = 0; axis < 2; ++axis)
    {
        addUcsLabels(request, axis, labelPoints(request, drawn, axis, clipper), made);
    }
    rectangle.close();
    eraseEntity(rectangleId);
    return true;
}
}  // namespace

AcDbObjectIdArray drawGrid(AcDbObjectId boundaryId, const GridRequest& request)
{
    AcDbObjectIdArray made;
    AcDbObjectPointer<AcDbEntity> boundary(boundaryId, AcDb::kForRead);
    if (boundary.openStatus() != Acad::eOk || !isMeasurable(request.corner1) ||
        !isMeasurable(request.corner2))
    {
        return made;
    }
    const BorrowedTolerance tolerance(pointTolerance(request));
    if (request.options.WCSBasePoint == 0)
    {
        drawWorldGrid(request, *boundary.object(), made);
    }
    else if (!drawUcsGrid(request, *boundary.object(), made))
    {
        // The outline is opened once more and never closed, so that the command cannot erase it.
        // The frame that stays in the drawing shows the draughtsman that the grid has failed.
        AcDbEntity* leftOpen = nullptr;
        acdbOpenAcDbEntity(leftOpen, boundaryId, AcDb::kForRead, false);
    }
    return made;
}

AcDbObjectIdArray buildGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                            double HorStep, double VertStep, Adesk::UInt16 Color, double crossSize,
                            int LookType, int WCSBasePoint, AcGePoint3d basePoint, bool needText,
                            double heightText, int iCountSigns, bool bXTopScribe,
                            bool bXBottomScribe, bool bXLeftScribe, bool bXRightScribe,
                            bool bYTopScribe, bool bYBottomScribe, bool bYLeftScribe,
                            bool bYRightScribe, const CString& textXScribe,
                            const CString& textYScribe, const CString& textStyleName,
                            const CString& localeName)
{
    GridRequest request = {corner1, corner2, GridSettings(), localeName};
    GridSettings& options = request.options;
    options.HorStep = HorStep;
    options.VertStep = VertStep;
    options.Color = Color;
    options.crossSize = crossSize;
    options.LookType = LookType;
    options.WCSBasePoint = WCSBasePoint;
    options.basePoint = basePoint;
    options.needText = needText;
    options.heightText = heightText;
    options.iCountSigns = iCountSigns;
    options.bXTopScribe = bXTopScribe;
    options.bXBottomScribe = bXBottomScribe;
    options.bXLeftScribe = bXLeftScribe;
    options.bXRightScribe = bXRightScribe;
    options.bYTopScribe = bYTopScribe;
    options.bYBottomScribe = bYBottomScribe;
    options.bYLeftScribe = bYLeftScribe;
    options.bYRightScribe = bYRightScribe;
    options.textXScribe = textXScribe;
    options.textYScribe = textYScribe;
    options.textStyleName = textStyleName;
    return drawGrid(boundaryId, request);
}
