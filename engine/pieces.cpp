#include "engine/pieces.h"

#include "output/entities.h"
#include "output/frame.h"
#include "output/tolerance.h"

PieceClipper::PieceClipper(const AcDbEntity& boundary, const AcGePoint3dArray& outline,
                           const CurveArea* area, double elevation, double tolerance)
    : isInUcs(area != nullptr),
      elevation(elevation),
      m_boundary(boundary),
      m_outline(outline),
      m_area(area),
      m_tolerance(tolerance),
      m_toWorld(isInUcs ? currentUcs() : AcGeMatrix3d())
{
}

bool PieceClipper::isInside(const AcGePoint3d& point, int axis, const LineSpan& span) const
{
    const int place = span.locate(point[axis]);
    if (place != 0)
    {
        return place == 1;
    }
    const BorrowedTolerance tolerance(m_tolerance);
    return (isInUcs ? m_area->locate(point) : pointInOutlinePoints(point, m_outline)) == 1;
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
bool PieceClipper::clip(Piece& piece, const AcGePoint3d& node, int axis, const LineSpan& span) const
{
    const bool startIsInside = isInside(piece.start, axis, span);
    const bool endIsInside = isInside(piece.end, axis, span);
    if (startIsInside && endIsInside)
    {
        return true;
    }
    if (!startIsInside && !endIsInside && (isInUcs || !isInside(node, axis, span)))
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
// Returns the vector from a node to the end of its piece, which runs along the axis.
AcGeVector3d halfPiece(const GridSettings& options, int axis)
{
    const double step = axis == 0 ? options.HorStep : options.VertStep;
    const double half = (options.LookType == 0 ? step : options.crossSize) / 2;
    return axis == 0 ? AcGeVector3d(half, 0, 0) : AcGeVector3d(0, half, 0);
}

// Draws the pieces of one grid line.
struct GridLine
{
    int axis;
    LineSpan span;
    bool isDrawn;  // at least one of its pieces

    // Appends the position to the list when the piece at the node is the first that is drawn.
    void drawPiece(const GridRequest& request, const PieceClipper& clipper, const AcGePoint3d& node,
                   const AcGeVector3d& half, std::vector<double>& drawn, AcDbObjectIdArray& made)
    {
        Piece piece = {node - half, node + half};
        const bool isClear =
            span.locate(piece.start[axis]) == 1 && span.locate(piece.end[axis]) == 1;
        if (!isClear && !clipper.clip(piece, node, axis, span))
        {
            return;
        }
        const AcDbObjectId id = addLine(clipper.isInUcs, piece.start, piece.end,
                                        colorIndex(request), nullptr, nullptr, ACDB_MODEL_SPACE);
        addMade(made, id);
        if (!id.isNull() && !isDrawn)
        {
            isDrawn = true;
            drawn.push_back(node[1 - axis]);
        }
    }
};
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
    const AcGeVector3d across = halfPiece(request.options, 0);
    const AcGeVector3d up = halfPiece(request.options, 1);
    AcGePoint3d node(0, 0, clipper.elevation);
    std::vector<GridLine> rows;
    for (std::size_t j = 0; j < lines.y.size(); ++j)
    {
        node.y = lines.y[j];
        const GridLine row = {0, clipper.span(node, 0), false};
        rows.push_back(row);
    }
    for (std::size_t i = 0; i < lines.x.size(); ++i)
    {
        node.x = lines.x[i];
        GridLine column = {1, clipper.span(node, 1), false};
        for (std::size_t j = 0; j < rows.size(); ++j)
        {
            node.y = lines.y[j];
            column.drawPiece(request, clipper, node, up, drawn.x, made);
            rows[j].drawPiece(request, clipper, node, across, drawn.y, made);
        }
    }
    return drawn;
}
