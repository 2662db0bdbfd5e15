// The lines of a grid, drawn piece by piece.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"
#include "engine/positions.h"

// A grid line is a chain of pieces one step long, one a node; a cross is two pieces.
struct Piece
{
    AcGePoint3d start;  // lower or left end
    AcGePoint3d end;
};

// Outline and system of a grid; cuts its pieces.
class PieceClipper
{
public:
    virtual ~PieceClipper() {}

    // Shortens the piece to its part within the outline. False: nothing of it is to be drawn.
    virtual bool clip(Piece& piece, const AcGePoint3d& node) const = 0;

    // Appends the points [wcs] where the piece meets the outline. False when the host cannot tell.
    bool meetOutline(const Piece& piece, AcDb::Intersect mode, AcGePoint3dArray& points) const;

    const bool isInUcs;      // pieces are [ucs], else [wcs]
    const double elevation;  // z of all nodes

protected:
    // boundary  [borrowed], open for read while this lives
    // toWorld   carries points of pieces to WCS
    PieceClipper(const AcDbEntity& boundary, bool isInUcs, const AcGeMatrix3d& toWorld,
                 double elevation);

private:
    PieceClipper(const PieceClipper&);
    PieceClipper& operator=(const PieceClipper&);

    const AcDbEntity& m_boundary;
    const AcGeMatrix3d m_toWorld;
};

// Draws a vertical and a horizontal piece at each node. With labels wanted, notes where the line of
// each piece drawn, carried on without end, meets the outline in just two points.
void drawPieces(const GridRequest& request, const GridLines& lines, const PieceClipper& clipper,
                GridDrawing& drawing);
