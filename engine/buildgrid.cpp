#include "engine/buildgrid.h"

#include <algorithm>

#include "engine/ucsgrid.h"
#include "engine/worldgrid.h"
#include "output/frame.h"
#include "output/tolerance.h"

namespace
{
double largestInBothFrames(const AcGePoint3d& wcs)
{
    return (std::max)(largestCoordinate(wcs), largestCoordinate(toUcs(wcs)));
}

double pointTolerance(const GridRequest& request)
{
    const AcGePoint3d& basePoint = request.options.basePoint;
    double largest = largestCoordinate(toWcs(AcGePoint3d::kOrigin));
    largest = (std::max)(largest, largestInBothFrames(request.corner1));
    largest = (std::max)(largest, largestInBothFrames(request.corner2));
    if (isMeasurable(basePoint))
    {
        largest = (std::max)(largest, largestInBothFrames(basePoint));
    }
    return atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
}

// Opens the outline for read and never closes it, so that the command cannot erase it. The frame
// that stays in the drawing shows the draughtsman that the grid has failed.
void leaveOpen(AcDbObjectId boundaryId)
{
    AcDbEntity* leftOpen = nullptr;
    acdbOpenAcDbEntity(leftOpen, boundaryId, AcDb::kForRead, false);
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
    GridRequest measurable = request;
    if (!isMeasurable(request.options.heightText))
    {
        // A text of such a height would keep the drawing from being saved.
        measurable.options.needText = 0;
    }
    const BorrowedTolerance tolerance(pointTolerance(request));
    if (request.options.WCSBasePoint == 0)
    {
        drawWorldGrid(measurable, *boundary.object(), made);
    }
    else if (!drawUcsGrid(measurable, *boundary.object(), made))
    {
        leaveOpen(boundaryId);
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
    GridRequest request;
    GridSettings& options = request.options;
    request.corner1 = corner1;
    request.corner2 = corner2;
    request.localeName = localeName;
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
