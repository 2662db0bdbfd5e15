// The grid along the axes of the world.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Draws the grid within the boundary and appends the ids of its entities to made. The lines are
// parallel to the world axes, and the steps count from the base point.
//
// request   its points are [wcs]; the function changes its own copy
// boundary  [borrowed], open for read, a quadrilateral [wcs] at the elevation of the corners
//
// If the corners have different elevations, the function draws one text in the middle instead, in
// the user's language. The user looks there anyway, and the text is grouped or erased like a grid.
// If the boundary has fewer than four points, the function draws nothing.
void drawWorldGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made);
