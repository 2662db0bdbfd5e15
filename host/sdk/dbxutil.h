// Conversions between the WCS and the current UCS.
#pragma once

#include "adsdef.h"

// Convert p into q, in drawing units, by the UCS that is current at the call. With vec set, p is a
// displacement: only the axes of the UCS count, not its origin. p and q may be the same array. They
// return false without an open drawing or for a null argument; q is unchanged then.
bool acdbWcs2Ucs(ads_point p, ads_point q, bool vec);  // p [wcs], q [ucs]
bool acdbUcs2Wcs(ads_point p, ads_point q, bool vec);  // p [ucs], q [wcs]
