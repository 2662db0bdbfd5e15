// Grid along the axes of the world.
#pragma once

#include "hostapi/host.h"
#include "engine/gridrequest.h"

// Draws the grid within the boundary: lines through the base point, parallel to the world axes.
//
// request   points [wcs]; a copy, which the steps change
// boundary  [borrowed], open for read, a quadrilateral [wcs] at the elevation of the corners
// Corners at different elevations give one text in the middle instead, in the user's language: the
// answer stands where the eye is, and is grouped or taken back like a grid.
void drawWorldGrid(GridRequest request, const AcDbEntity& boundary, AcDbObjectIdArray& made);
