#include "engine/worldgrid.h"

#include <algorithm>
#include <cmath>

#include "engine/gridlabels.h"
#include "engine/pieces.h"
#include "engine/worldlabels.h"
#include "output/frame.h"
#include "output/labels.h"
#include "output/language.h"
#include "output/tolerance.h"

namespace
{
bool isTilted(const GridRequest& request)
{
    return std::fabs(request.corner1.z - request.corner2.z) > AcGeContext::gTol.equalPoint();
}

void addTiltedText(const GridRequest& request, AcDbObjectIdArray& made)
{
    const ACHAR* text = isRussian(request.localeName)
                            ? L"Плоскость рисования не параллельна плоскости XY в МСК"
                            : L"Current plane is not parallel to XY plane in WCS";
    const AcGePoint3d middle = request.corner1 + (request.corner2 - request.corner1) / 2;
    const double height = std::fabs(request.corner2.x - request.corner1.x) / 30.0;
    addMade(made, addLabelText(true, text, toUcs(middle), height, 0, colorIndex(request),
                               request.options.textStyleName, AcDb::kTextMid, AcDb::kTextVertMid,
                               ACDB_MODEL_SPACE));
}

// Sets corner1 to the smallest and corner2 to the largest x and y of both corners and the outline.
void widenTo(const AcGePoint3dArray& outline, AcGePoint3d& corner1, AcGePoint3d& corner2)
{
    sortCorners(corner1, corner2);
    for (int i = 0; i < outline.length(); ++i)
    {
        corner1.x = (std::min)(corner1.x, outline[i].x);
        corner1.y = (std::min)(corner1.y, outline[i].y);
        corner2.x = (std::max)(corner2.x, outline[i].x);
        corner2.y = (std::max)(corner2.y, outline[i].y);
    }
}

}  // namespace

void drawWorldGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made)
{
    if (isTilted(request))
    {
        addTiltedText(request, made);
        return;
    }
    const FrameEdges edges = frameEdges(request);
    AcGePoint3dArray outline;
    boundary.getStretchPoints(outline);
    widenTo(outline, request.corner1, request.corner2);
    // The outline may reach beyond the picked corners, to coordinates with a coarser rounding.
    const double largest =
        (std::max)(largestCoordinate(request.corner1), largestCoordinate(request.corner2));
    const double tolerance = atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
    const PieceClipper clipper(boundary, outline, nullptr, request.corner1.z, tolerance);
    const GridLines drawn = drawPieces(request, gridLines(request), clipper, made);
    if (request.options.needText != 0)
    {
        addWorldLabels(request, edges, 0, labelPoints(request, drawn.x, 0, clipper), made);
        addWorldLabels(request, edges, 1, labelPoints(request, drawn.y, 1, clipper), made);
    }
}
