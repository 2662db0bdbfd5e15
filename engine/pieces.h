// Draws the lines of a grid piece by piece.
#pragma once

#include <vector>

#include "engine/gridrequest.h"
#include "engine/linespan.h"
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
    // outline    the points of the boundary, in the system of the pieces, [borrowed] while this
    //            object lives. The first four are the corners in order; with fewer points the
    //            outline has no inside.
    // area       the area within the outline [ucs], [borrowed] while this object lives: pieces are
    //            [ucs]. Null: pieces are [wcs], and the outline is the quadrilateral of its
    //            corners.
    // elevation  z of all nodes, in drawing units
    // tolerance  equalPoint during the point tests, in drawing units
    PieceClipper(const AcDbEntity& boundary, const AcGePoint3dArray& outline, const CurveArea* area,
                 double elevation, double tolerance);

    // Returns where the points of the line lie that runs through P along an axis, 0 for X and 1 for
    // Y.
    LineSpan span(const AcGePoint3d& P, int axis) const { return lineSpan(m_outline, P, axis); }

    // Shortens the piece to its part within the outline. The piece runs along the axis, the node is
    // its middle, and the span is that of its line. Returns false when no part of the piece is to
    // be drawn.
    bool clip(Piece& piece, const AcGePoint3d& node, int axis, const LineSpan& span) const;

    // Appends the points [wcs] where the piece meets the outline; kExtendThis extends the piece.
    // Returns false when the host cannot compute them.
    bool intersectOutline(const Piece& piece, AcDb::Intersect mode, AcGePoint3dArray& points) const;

    // Returns the direction [wcs] of a direction in the system of the pieces.
    AcGeVector3d toWorld(const AcGeVector3d& direction) const { return m_toWorld * direction; }

    const bool isInUcs;      // true: pieces are [ucs]; false: pieces are [wcs]
    const double elevation;  // z of all nodes

private:
    PieceClipper(const PieceClipper&);
    PieceClipper& operator=(const PieceClipper&);

    bool isInside(const AcGePoint3d& point, int axis, const LineSpan& span) const;

    const AcDbEntity& m_boundary;
    const AcGePoint3dArray& m_outline;
    const CurveArea* const m_area;
    const double m_tolerance;
    const AcGeMatrix3d m_toWorld;  // carries points of pieces to WCS
};

// Draws a vertical and a horizontal piece at each node and appends the ids of the lines to made.
// Returns the grid lines that have at least one drawn piece. The lines of each direction are in the
// order in which their first pieces were drawn.
GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made);
