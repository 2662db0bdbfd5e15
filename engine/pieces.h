// The lines of a grid, drawn piece by piece.
#pragma once

#include <vector>

#include "engine/gridrequest.h"
#include "engine/positions.h"
#include "engine/rectanglefilter.h"

// A grid line is a chain of pieces one step long, one a node; a cross is two pieces.
struct Piece
{
    AcGePoint3d start;  // lower or left end
    AcGePoint3d end;
};

// Outline and system of a grid; clips its pieces.
class PieceClipper
{
public:
    virtual ~PieceClipper() {}

    // Shortens the piece to its part within the outline. False: nothing of it is to be drawn.
    bool clip(Piece& piece, const AcGePoint3d& node) const;

    // Appends the points [wcs] where the piece meets the outline. False when the host cannot tell.
    bool intersectOutline(const Piece& piece, AcDb::Intersect mode, AcGePoint3dArray& points) const;

    const bool isInUcs;      // pieces are [ucs], else [wcs]
    const double elevation;  // z of all nodes

protected:
    // boundary   [borrowed], open for read while this lives
    // isInUcs    also says that the node of a piece has no say in its clipping
    // corners    of the outline, in the system of the pieces
    PieceClipper(const AcDbEntity& boundary, bool isInUcs, const AcGePoint3d (&corners)[4],
                 double elevation);

private:
    PieceClipper(const PieceClipper&);
    PieceClipper& operator=(const PieceClipper&);

    // The point test of the outline: 1 inside, anything else not.
    virtual int locate(const AcGePoint3d& point) const = 0;
    bool isInside(const AcGePoint3d& point) const;

    const AcDbEntity& m_boundary;
    const AcGeMatrix3d m_toWorld;  // carries points of pieces to WCS
    const RectangleFilter m_filter;
};

// Draws a vertical and a horizontal piece at each node. Returns the lines of which a piece was
// drawn, each direction in the order of its first pieces.
GridLines drawPieces(const GridRequest& request, const GridLines& lines,
                     const PieceClipper& clipper, AcDbObjectIdArray& made);
