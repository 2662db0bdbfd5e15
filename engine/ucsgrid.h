// The grid along the axes of the current UCS.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Draws the grid within the boundary and appends the ids of its entities to made. The lines are
// parallel to the UCS axes, and the steps count from the base point.
//
// request   its points are [wcs]; the function changes its own copy
// boundary  [borrowed], open for read, the rectangle between the corners in the plane of the UCS
//
// Points are tested against an auxiliary rectangle, which is invisible and is erased at the end.
// Returns true when the grid is drawn. Returns false when the host refuses to make or to open the
// rectangle; then no grid is drawn, and a rectangle that cannot be opened stays in the drawing.
bool drawUcsGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made);
