// Grid along the axes of the current UCS.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Draws the grid within the boundary: lines through the base point, parallel to the UCS axes.
//
// request   points [wcs]; a copy, which the steps change
// boundary  [borrowed], open for read, the rectangle between the corners in the plane of the UCS
// False when the host refuses the auxiliary rectangle that points are tested against; nothing is
// drawn then. The rectangle is invisible and never stays in the drawing.
bool drawUcsGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made);
