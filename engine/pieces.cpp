#include "engine/pieces.h"

#include <vector>

#include "engine/pointtests.h"
#include "output/entities.h"
#include "output/tolerance.h"

PieceClipper::PieceClipper(const AcDbEntity& boundary, bool isInUcs, const AcGeMatrix3d& toWorld,
                           double elevation)
    : isInUcs(isInUcs), elevation(elevation), m_boundary(boundary), m_toWorld(toWorld)
{
}

bool PieceClipper::meetOutline(const Piece& piece, AcDb::Intersect mode,
                               AcGePoint3dArray& points) const
{
    AcDbLine line(piece.start, piece.end);
    line.transformBy(m_toWorld);
    return line.intersectWith(&m_boundary, mode, points) == Acad::eOk;
}

namespace
{
// One of the lines that the pieces make up.
struct WholeLine
{
    Piece piece;
    bool isNoted;  // its label points have been asked for
};
}  // namespace

static std::vector<WholeLine> wholeLines(const GridRequest& request, const std::vector<double>& at,
                                         int axis, double elevation)
{
    std::vector<WholeLine> lines(at.size());
    for (std::size_t i = 0; i < at.size(); ++i)
    {
        Piece& piece = lines[i].piece;
        piece.start = AcGePoint3d(request.corner1.x, request.corner1.y, elevation);
        piece.end = AcGePoint3d(request.corner2.x, request.corner2.y, elevation);
        piece.start[axis] = at[i];
        piece.end[axis] = at[i];
        lines[i].isNoted = false;
    }
    return lines;
}

// Of the pieces of one line the first that is drawn notes its ends; the others would find them
// noted.
static void noteLabelPoints(const PieceClipper& clipper, const Piece& wholeLine,
                            AcGePoint3dArray& labelPoints)
{
    AcGePoint3dArray meets;
    clipper.meetOutline(wholeLine, AcDb::kExtendThis, meets);
    if (meets.length() == 2 && !containsPoint(labelPoints, meets[0]))
    {
        labelPoints.append(meets);
    }
}

// wholeLine stands for the piece where its line is carried on. A piece that was cut short gives its
// direction to a few units of the last place over its own length; a thousand lengths away, at
// survey coordinates, each piece of one line would end at a point of its own.
static void drawPiece(const GridRequest& request, const PieceClipper& clipper,
                      const AcGePoint3d& node, const AcGeVector3d& half, WholeLine& wholeLine,
                      AcGePoint3dArray& labelPoints, GridDrawing& drawing)
{
    Piece piece = {node - half, node + half};
    if (!clipper.clip(piece, node))
    {
        return;
    }
    const AcDbObjectId id = addLine(clipper.isInUcs, piece.start, piece.end, request.Color, nullptr,
                                    nullptr, ACDB_MODEL_SPACE);
    if (request.needText && !wholeLine.isNoted && !id.isNull())
    {
        noteLabelPoints(clipper, wholeLine.piece, labelPoints);
        wholeLine.isNoted = true;
    }
    addMade(drawing, id);
}

void drawPieces(const GridRequest& request, const GridLines& lines, const PieceClipper& clipper,
                GridDrawing& drawing)
{
    // A cross of no size that can be measured would end at no point that can be drawn.
    const bool isContinuous = request.LookType == 0;
    if (!isContinuous && !isMeasurable(request.crossSize))
    {
        return;
    }
    const double up = isContinuous ? request.VertStep : request.crossSize;
    const double across = isContinuous ? request.HorStep : request.crossSize;
    const AcGeVector3d halfUp(0, up / 2, 0);
    const AcGeVector3d halfAcross(across / 2, 0, 0);
    std::vector<WholeLine> vertical = wholeLines(request, lines.x, 0, clipper.elevation);
    std::vector<WholeLine> horizontal = wholeLines(request, lines.y, 1, clipper.elevation);
    for (std::size_t i = 0; i < lines.x.size(); ++i)
    {
        for (std::size_t j = 0; j < lines.y.size(); ++j)
        {
            const AcGePoint3d node(lines.x[i], lines.y[j], clipper.elevation);
            drawPiece(request, clipper, node, halfUp, vertical[i], drawing.xLabelPoints, drawing);
            drawPiece(request, clipper, node, halfAcross, horizontal[j], drawing.yLabelPoints,
                      drawing);
        }
    }
}
