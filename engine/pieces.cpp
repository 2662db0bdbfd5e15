#include "engine/pieces.h"

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

// Of the pieces of one line the first notes its ends.
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
static void drawPiece(const GridRequest& request, const PieceClipper& clipper, Piece piece,
                      const AcGePoint3d& node, const Piece& wholeLine,
                      AcGePoint3dArray& labelPoints, GridDrawing& drawing)
{
    if (!clipper.clip(piece, node))
    {
        return;
    }
    const AcDbObjectId id = addLine(clipper.isInUcs, piece.start, piece.end, request.Color, nullptr,
                                    nullptr, ACDB_MODEL_SPACE);
    if (request.needText && !id.isNull())
    {
        noteLabelPoints(clipper, wholeLine, labelPoints);
    }
    addMade(drawing, id);
}

static void drawVerticalPiece(const GridRequest& request, const PieceClipper& clipper,
                              const AcGePoint3d& node, double length, GridDrawing& drawing)
{
    const AcGeVector3d half(0, length / 2, 0);
    const Piece piece = {node - half, node + half};
    const Piece wholeLine = {AcGePoint3d(node.x, request.corner1.y, node.z),
                             AcGePoint3d(node.x, request.corner2.y, node.z)};
    drawPiece(request, clipper, piece, node, wholeLine, drawing.xLabelPoints, drawing);
}

static void drawHorizontalPiece(const GridRequest& request, const PieceClipper& clipper,
                                const AcGePoint3d& node, double length, GridDrawing& drawing)
{
    const AcGeVector3d half(length / 2, 0, 0);
    const Piece piece = {node - half, node + half};
    const Piece wholeLine = {AcGePoint3d(request.corner1.x, node.y, node.z),
                             AcGePoint3d(request.corner2.x, node.y, node.z)};
    drawPiece(request, clipper, piece, node, wholeLine, drawing.yLabelPoints, drawing);
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
    for (std::size_t i = 0; i < lines.x.size(); ++i)
    {
        for (std::size_t j = 0; j < lines.y.size(); ++j)
        {
            const AcGePoint3d node(lines.x[i], lines.y[j], clipper.elevation);
            drawVerticalPiece(request, clipper, node, up, drawing);
            drawHorizontalPiece(request, clipper, node, across, drawing);
        }
    }
}
