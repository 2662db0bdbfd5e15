// Conversion between the WCS and the current UCS.
#pragma once

#include "adsdef.h"

// vec: p is a displacement, not a position. p and q may be the same.
bool acdbWcs2Ucs(ads_point p, ads_point q, bool vec);
bool acdbUcs2Wcs(ads_point p, ads_point q, bool vec);
