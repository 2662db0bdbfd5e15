// The user's coordinate system (UCS) and the world's (WCS).
#pragma once

#include "hostapi/host.h"

// Positions, not directions. Without a drawing the point comes back as it is.
AcGePoint3d toUcs(AcGePoint3d wcs);
AcGePoint3d toWcs(AcGePoint3d ucs);

// Carries UCS coordinates to WCS.
AcGeMatrix3d currentUcs();
