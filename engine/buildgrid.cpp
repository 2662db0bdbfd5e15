#include "engine/buildgrid.h"

#include <algorithm>

#include "engine/gridrequest.h"
#include "engine/ucsgrid.h"
#include "engine/worldgrid.h"
#include "output/frame.h"
#include "output/tolerance.h"

static double largestInBothFrames(const AcGePoint3d& wcs)
{
    return (std::max)(largestCoordinate(wcs), largestCoordinate(toUcs(wcs)));
}

static double pointTolerance(const GridRequest& request)
{
    double largest = largestCoordinate(toWcs(AcGePoint3d::kOrigin));
    largest = (std::max)(largest, largestInBothFrames(request.corner1));
    largest = (std::max)(largest, largestInBothFrames(request.corner2));
    if (isMeasurable(request.basePoint))
    {
        largest = (std::max)(largest, largestInBothFrames(request.basePoint));
    }
    return atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
}

// Keeps one reader on the outline for good. Always been so: the command can then not take the
// outline back, and the draughtsman sees by the frame left behind that the grid has failed.
static void leaveOpen(AcDbObjectId boundaryId)
{
    AcDbEntity* leftOpen = nullptr;
    acdbOpenAcDbEntity(leftOpen, boundaryId, AcDb::kForRead, false);
}

static void drawGrid(const GridRequest& request, AcDbObjectId boundaryId, int WCSBasePoint,
                     GridDrawing& drawing)
{
    AcDbObjectPointer<AcDbEntity> boundary(boundaryId, AcDb::kForRead);
    if (boundary.openStatus() != Acad::eOk || !isMeasurable(request.corner1) ||
        !isMeasurable(request.corner2))
    {
        return;
    }
    const BorrowedTolerance tolerance(pointTolerance(request));
    if (WCSBasePoint == 0)
    {
        drawWorldGrid(request, *boundary.object(), drawing);
    }
    else if (!drawUcsGrid(request, *boundary.object(), drawing))
    {
        leaveOpen(boundaryId);
    }
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
    const LabelRequest xLabels = {bXTopScribe, bXBottomScribe, bXLeftScribe, bXRightScribe,
                                  textXScribe};
    const LabelRequest yLabels = {bYTopScribe, bYBottomScribe, bYLeftScribe, bYRightScribe,
                                  textYScribe};
    // As little as a cross of no size that can be measured: the drawing could not be saved again.
    const bool drawText = needText && isMeasurable(heightText);
    const GridRequest request = {corner1,     corner2,   basePoint, HorStep,       VertStep,
                                 Color,       crossSize, LookType,  drawText,      heightText,
                                 iCountSigns, xLabels,   yLabels,   textStyleName, localeName};
    GridDrawing drawing;
    drawGrid(request, boundaryId, WCSBasePoint, drawing);
    return drawing.made;
}
