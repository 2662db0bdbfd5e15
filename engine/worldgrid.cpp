#include "engine/worldgrid.h"

#include <algorithm>
#include <cmath>

#include "engine/cleararea.h"
#include "engine/pieces.h"
#include "engine/pointtests.h"
#include "engine/worldlabels.h"
#include "output/frame.h"
#include "output/labels.h"
#include "output/language.h"

namespace
{
// Against the quadrilateral of the boundary's first four points.
class WorldClipper : public PieceClipper
{
public:
    // outline  [borrowed], at least four points
    WorldClipper(const AcDbEntity& boundary, const AcGePoint3dArray& outline, double elevation)
        : PieceClipper(boundary, false, AcGeMatrix3d(), elevation),
          m_outline(outline),
          m_clear(outline[0], outline[1], outline[2], outline[3], widestTolerance())
    {
    }

    virtual bool clip(Piece& piece, const AcGePoint3d& node) const override;

private:
    static double widestTolerance()
    {
        return (std::max)(AcGeContext::gTol.equalPoint(), AcGeContext::gTol.equalVector());
    }

    bool isInside(const AcGePoint3d& point) const
    {
        const int place = m_clear.locate(point);
        return place != 0 ? place == 1 : pointInOutlinePoints(point, m_outline) == 1;
    }

    const AcGePoint3dArray& m_outline;
    const ClearArea m_clear;
};
}  // namespace

// Cuts come far end first; with only the node inside they bound the piece from both sides.
static void cutEndsOutside(Piece& piece, bool startIsInside, bool endIsInside,
                           const AcGePoint3dArray& cuts)
{
    if (startIsInside)
    {
        piece.end = cuts.first();
        return;
    }
    piece.start = cuts.first();
    if (!endIsInside)
    {
        piece.end = cuts.last();
    }
}

bool WorldClipper::clip(Piece& piece, const AcGePoint3d& node) const
{
    const bool startIsInside = isInside(piece.start);
    const bool endIsInside = isInside(piece.end);
    if (startIsInside && endIsInside)
    {
        return true;
    }
    if (!startIsInside && !endIsInside && !isInside(node))
    {
        return false;
    }
    AcGePoint3dArray cuts;
    if (!meetOutline(piece, AcDb::kOnBothOperands, cuts))
    {
        return false;
    }
    if (!cuts.isEmpty())
    {
        cutEndsOutside(piece, startIsInside, endIsInside, cuts);
    }
    return true;
}

static bool isTilted(const GridRequest& request)
{
    return std::fabs(request.corner1.z - request.corner2.z) > AcGeContext::gTol.equalPoint();
}

static void addTiltedText(const GridRequest& request, GridDrawing& drawing)
{
    const ACHAR* text = isRussian(request.localeName)
                            ? L"Плоскость рисования не параллельна плоскости XY в МСК"
                            : L"Current plane is not parallel to XY plane in WCS";
    const AcGePoint3d middle = request.corner1 + (request.corner2 - request.corner1) / 2;
    const double height = std::fabs(request.corner2.x - request.corner1.x) / 30.0;
    addMade(drawing,
            addLabelText(true, text, toUcs(middle), height, 0, request.Color, request.textStyleName,
                         AcDb::kTextMid, AcDb::kTextVertMid, ACDB_MODEL_SPACE));
}

// corner1 takes the smallest, corner2 the largest x and y of both corners and the outline.
static void widenTo(const AcGePoint3dArray& outline, AcGePoint3d& corner1, AcGePoint3d& corner2)
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

void drawWorldGrid(GridRequest request, const AcDbEntity& boundary, GridDrawing& drawing)
{
    if (isTilted(request))
    {
        addTiltedText(request, drawing);
        return;
    }
    const FrameEdges edges = frameEdges(request);
    AcGePoint3dArray outline;
    boundary.getStretchPoints(outline);
    if (outline.length() < 4)
    {
        return;
    }
    widenTo(outline, request.corner1, request.corner2);
    const GridLines lines = gridLines(request.corner1, request.corner2, request.basePoint,
                                      request.HorStep, request.VertStep);
    const WorldClipper clipper(boundary, outline, request.corner1.z);
    drawPieces(request, lines, clipper, drawing);
    if (request.needText)
    {
        addWorldLabels(request, edges, drawing);
    }
}
