#include "engine/pieces.h"

#include "output/entities.h"
#include "output/frame.h"
#include "output/tolerance.h"

PieceClipper::PieceClipper(const AcDbEntity& boundary, const AcDbCurve* rectangle,
                           const AcGePoint3dArray& outline, double tolerance)
    : isInUcs(rectangle != nullptr),
      toWorld(isInUcs ? currentUcs() : AcGeMatrix3d()),
      m_boundary(boundary),
      m_rectangle(rectangle),
      m_outline(outline),
      m_tolerance(tolerance)
{
    areaWithin(rectangle, m_area);
}

bool PieceClipper::isInside(const AcGePoint3d& point, const LineSpan& span) const
{
    const int place = span.locate(point);
    if (place != 0)
    {
        return place == 1;
    }
    const BorrowedTolerance tolerance(m_tolerance);
    return (isInUcs ? pointInCurve(point, *m_rectangle, m_area)
                    : pointInOutlinePoints(point, m_outline)) == 1;
}

bool PieceClipper::intersectOutline(const Piece& piece, AcDb::Intersect mode,
                                    AcGePoint3dArray& points) const
{
    AcDbLine line(piece.start, piece.end);
    line.transformBy(toWorld);
    return line.intersectWith(&m_boundary, mode, points) == Acad::eOk;
}

// The UCS grid does not test the node, so it drops a cross if only the centre of it is inside. The
// world grid draws that cross. A compatibility rule keeps both behaviours: a grid drawn again must
// match the filed sheet.
bool PieceClipper::clip(Piece& piece, const AcGePoint3d& node, const LineSpan& span) const
{
    const bool startIsInside = isInside(piece.start, span);
    const bool endIsInside = isInside(piece.end, span);
    if (startIsInside && endIsInside)
    {
        return true;
    }
    const bool isAround = !startIsInside && !endIsInside;
    AcGePoint3dArray points;
    if ((isAround && (isInUcs || !isInside(node, span))) ||
        !intersectOutline(piece, AcDb::kOnBothOperands, points))
    {
        return false;
    }
    if (!points.isEmpty())
    {
        // The host returns the far end first. If only the node is inside, the first and the last
        // point bound the piece on both sides.
        const AcGePoint3d first = isInUcs ? toUcs(points.first()) : points.first();
        (startIsInside ? piece.end : piece.start) = first;
        piece.end = isAround ? points.last() : piece.end;
    }
    return true;
}

namespace
{
// Draws the pieces of one grid line.
struct GridLine
{
    LineSpan span;
    AcGeVector3d half;  // from a node to the end of its piece
    bool isDrawn;       // at least one piece is

    // Appends the position of the line to drawn with the first of its pieces.
    void drawPiece(const GridRequest& request, const PieceClipper& clipper, const AcGePoint3d& node,
                   GridLines& drawn, AcDbObjectIdArray& made)
    {
        Piece piece = {node - half, node + half};
        const bool isClear = span.locate(piece.start) == 1 && span.locate(piece.end) == 1;
        if (!isClear && !clipper.clip(piece, node, span))
        {
            return;
        }
        const AcDbObjectId id = addLine(clipper.isInUcs, piece.start, piece.end, request.color(),
                                        nullptr, nullptr, ACDB_MODEL_SPACE);
        addMade(made, id);
        if (!id.isNull() && !isDrawn)
        {
            isDrawn = true;
            drawn.at[1 - span.axis].push_back(node[1 - span.axis]);
        }
    }
};
}  // namespace

GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made)
{
    const GridSettings& options = request.options;
    const bool isCross = options.LookType != 0;
    GridLines drawn;
    // The size of the cross is not a usable number, so its pieces would have no usable ends.
    if (isCross && !isMeasurable(options.crossSize))
    {
        return drawn;
    }
    const AcGeVector3d across((isCross ? options.crossSize : options.HorStep) / 2, 0, 0);
    const AcGeVector3d up(0, (isCross ? options.crossSize : options.VertStep) / 2, 0);
    AcGePoint3d node = request.corner1;
    std::vector<GridLine> rows;
    for (std::size_t j = 0; j < lines.at[1].size(); ++j)
    {
        node.y = lines.at[1][j];
        const GridLine row = {clipper.span(node, 0), across, false};
        rows.push_back(row);
    }
    for (std::size_t i = 0; i < lines.at[0].size(); ++i)
    {
        node.x = lines.at[0][i];
        GridLine column = {clipper.span(node, 1), up, false};
        for (std::size_t j = 0; j < rows.size(); ++j)
        {
            node.y = lines.at[1][j];
            column.drawPiece(request, clipper, node, drawn, made);
            rows[j].drawPiece(request, clipper, node, drawn, made);
        }
    }
    return drawn;
}
