// Converts between the user's coordinate system (UCS) and the world's (WCS).
#pragma once

#include "hostapi/host.h"

// Returns the position [wcs] in coordinates of the current UCS [ucs]. Without a drawing the point
// is returned unchanged. The function is meant for positions, not for directions.
AcGePoint3d toUcs(AcGePoint3d wcs);

// Returns the position [ucs] in world coordinates [wcs]; otherwise it does the same as toUcs.
AcGePoint3d toWcs(AcGePoint3d ucs);

// Returns the matrix that converts coordinates of the current UCS to WCS.
AcGeMatrix3d currentUcs();
