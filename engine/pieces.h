// Draws the lines of a grid piece by piece.
#pragma once

#include <vector>

#include "engine/gridrequest.h"
#include "engine/positions.h"
#include "engine/rectanglefilter.h"

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
    virtual ~PieceClipper() {}

    // Shortens the piece to its part within the outline. The node is the middle of the piece.
    // Returns false when no part of the piece is to be drawn.
    bool clip(Piece& piece, const AcGePoint3d& node) const;

    // Appends the points [wcs] where the piece meets the outline; kExtendThis extends the piece.
    // Returns false when the host cannot compute them.
    bool intersectOutline(const Piece& piece, AcDb::Intersect mode, AcGePoint3dArray& points) const;

    const bool isInUcs;      // true: pieces are [ucs]; false: pieces are [wcs]
    const double elevation;  // z of all nodes

protected:
    // boundary   the outline [borrowed], open for read while this object lives
    // isInUcs    true also means that clip ignores the node of a piece
    // corners    the corners of the outline, in the system of the pieces
    // elevation  z of all nodes, in drawing units
    PieceClipper(const AcDbEntity& boundary, bool isInUcs, const AcGePoint3d (&corners)[4],
                 double elevation);

private:
    PieceClipper(const PieceClipper&);
    PieceClipper& operator=(const PieceClipper&);

    // Tests the point, which is in the system of the pieces, against the outline. Returns 1 for a
    // point inside; any other result means that the point is not inside.
    virtual int locate(const AcGePoint3d& point) const = 0;
    bool isInside(const AcGePoint3d& point) const;

    const AcDbEntity& m_boundary;
    const AcGeMatrix3d m_toWorld;  // carries points of pieces to WCS
    const RectangleFilter m_filter;
};

// Draws a vertical and a horizontal piece at each node and appends the ids of the lines to made.
// Returns the grid lines that have at least one drawn piece. The lines of each direction are in the
// order in which their first pieces were drawn.
GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made);
