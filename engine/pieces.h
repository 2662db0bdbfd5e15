// Draws the lines of a grid piece by piece.
#pragma once

#include "engine/pointtests.h"
#include "engine/positions.h"

// A part of a grid line at one node. A continuous line is a chain of pieces that are one step long,
// and a cross is two pieces. The points are in the system of the clipper.
struct Piece
{
    AcGePoint3d start;  // lower or left end
    AcGePoint3d end;    // upper or right end
};

// Clips the pieces of a grid. It knows the outline and the system of the pieces.
class PieceClipper
{
public:
    // boundary   the outline [borrowed], open for read while this object lives
    // rectangle  the outline as a rectangle with [ucs] coordinates, [borrowed], open for read while
    //            this object lives: pieces are [ucs]. Null: pieces are [wcs].
    // outline    the points of the boundary or the rectangle, in the system of the pieces,
    //            [borrowed] while this object lives. The first four are the corners in order.
    // tolerance  equalPoint during the point tests, in drawing units
    PieceClipper(const AcDbEntity& boundary, const AcDbCurve* rectangle,
                 const AcGePoint3dArray& outline, double tolerance);

    // Returns where the points of the line through P along an axis (0 for X, 1 for Y) lie.
    LineSpan span(const AcGePoint3d& P, int axis) const { return lineSpan(m_outline, P, axis); }

    // Shortens the piece to its part within the outline. The node is the middle of the piece, and
    // the span is that of its line. Returns false when no part of the piece is to be drawn.
    bool clip(Piece& piece, const AcGePoint3d& node, const LineSpan& span) const;

    // Appends the points [wcs] where the piece meets the outline; kExtendThis extends the piece.
    // Returns false when the host cannot compute them.
    bool intersectOutline(const Piece& piece, AcDb::Intersect mode, AcGePoint3dArray& points) const;

    const bool isInUcs;          // true: pieces are [ucs]; false: pieces are [wcs]
    const AcGeMatrix3d toWorld;  // carries points of pieces to WCS

private:
    bool isInside(const AcGePoint3d& point, const LineSpan& span) const;

    const AcDbEntity& m_boundary;
    const AcDbCurve* const m_rectangle;
    const AcGePoint3dArray& m_outline;
    const double m_tolerance;
    AcDbMPolygon m_area;  // within the rectangle, if there is one
};

// Draws a vertical and a horizontal piece at each node and appends the ids of the lines to made.
// Returns the grid lines that have at least one drawn piece, in the order of their first pieces.
GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made);
