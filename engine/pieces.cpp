#include "engine/pieces.h"

#include "output/entities.h"
#include "output/frame.h"
#include "output/tolerance.h"

PieceClipper::PieceClipper(const AcDbEntity& boundary, bool isInUcs,
                           const AcGePoint3d (&corners)[4], double elevation)
    : isInUcs(isInUcs),
      elevation(elevation),
      m_boundary(boundary),
      m_toWorld(isInUcs ? currentUcs() : AcGeMatrix3d()),
      m_filter(corners, elevation)
{
}

bool PieceClipper::isInside(const AcGePoint3d& point) const
{
    const int place = m_filter.locate(point);
    return (place != 0 ? place : locate(point)) == 1;
}

bool PieceClipper::intersectOutline(const Piece& piece, AcDb::Intersect mode,
                                    AcGePoint3dArray& points) const
{
    AcDbLine line(piece.start, piece.end);
    line.transformBy(m_toWorld);
    return line.intersectWith(&m_boundary, mode, points) == Acad::eOk;
}

// The UCS grid does not test the node, so it drops a cross if only the centre of it is inside. The
// world grid draws that cross. A compatibility rule keeps both behaviours: a grid drawn again must
// match the filed sheet.
bool PieceClipper::clip(Piece& piece, const AcGePoint3d& node) const
{
    const bool startIsInside = isInside(piece.start);
    const bool endIsInside = isInside(piece.end);
    if (startIsInside && endIsInside)
    {
        return true;
    }
    if (!startIsInside && !endIsInside && (isInUcs || !isInside(node)))
    {
        return false;
    }
    AcGePoint3dArray points;
    if (!intersectOutline(piece, AcDb::kOnBothOperands, points))
    {
        return false;
    }
    if (points.isEmpty())
    {
        return true;
    }
    // The host returns the far end first. If only the node is inside, the first and the last point
    // bound the piece on both sides.
    const AcGePoint3d first = isInUcs ? toUcs(points.first()) : points.first();
    (startIsInside ? piece.end : piece.start) = first;
    if (!startIsInside && !endIsInside)
    {
        piece.end = points.last();
    }
    return true;
}

namespace
{
// Returns the vector from a node to the end of its piece, which runs along X or along Y.
AcGeVector3d halfPiece(const GridSettings& options, bool alongX)
{
    const double step = alongX ? options.HorStep : options.VertStep;
    const double half = (options.LookType == 0 ? step : options.crossSize) / 2;
    return alongX ? AcGeVector3d(half, 0, 0) : AcGeVector3d(0, half, 0);
}

bool drawPiece(const GridRequest& request, const PieceClipper& clipper, const AcGePoint3d& node,
               const AcGeVector3d& half, AcDbObjectIdArray& made)
{
    Piece piece = {node - half, node + half};
    if (!clipper.clip(piece, node))
    {
        return false;
    }
    const AcDbObjectId id = addLine(clipper.isInUcs, piece.start, piece.end, colorIndex(request),
                                    nullptr, nullptr, ACDB_MODEL_SPACE);
    addMade(made, id);
    return !id.isNull();
}
}  // namespace

GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made)
{
    GridLines drawn;
    // The size of the cross is not a usable number, so its pieces would have no usable ends.
    if (request.options.LookType != 0 && !isMeasurable(request.options.crossSize))
    {
        return drawn;
    }
    const AcGeVector3d across = halfPiece(request.options, true);
    const AcGeVector3d up = halfPiece(request.options, false);
    std::vector<bool> isDrawn(lines.y.size());
    for (std::size_t i = 0; i < lines.x.size(); ++i)
    {
        for (std::size_t j = 0; j < lines.y.size(); ++j)
        {
            const AcGePoint3d node(lines.x[i], lines.y[j], clipper.elevation);
            if (drawPiece(request, clipper, node, up, made) &&
                (drawn.x.empty() || drawn.x.back() != node.x))
            {
                drawn.x.push_back(node.x);
            }
            if (drawPiece(request, clipper, node, across, made) && !isDrawn[j])
            {
                isDrawn[j] = true;
                drawn.y.push_back(node.y);
            }
        }
    }
    return drawn;
}
