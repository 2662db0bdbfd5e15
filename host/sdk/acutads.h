// Small utilities of the editor.
#pragma once

#include "adsdef.h"

// Prints on the command line. Conversions of the wide printf family: %s takes a wide text.
int acutPrintf(const ACHAR* format, ...);

// Direction from pt1 to pt2 in the XY plane, radians in [0, 2 pi); 0 for equal points.
ads_real acutAngle(const ads_point pt1, const ads_point pt2);
