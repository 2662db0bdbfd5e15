// Conversion between the WCS and the current UCS.
#pragma once

#include "adsdef.h"

// Each converts p into q, in drawing units, by the UCS that is current at the call. With vec set p
// is a displacement: the axes count and the origin does not. p and q may be the same array.
// False, and q as it was, without an open drawing or for a null argument.
bool acdbWcs2Ucs(ads_point p, ads_point q, bool vec);  // p [wcs], q [ucs]
bool acdbUcs2Wcs(ads_point p, ads_point q, bool vec);  // p [ucs], q [wcs]
