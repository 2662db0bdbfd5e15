// Small utilities of the editor.
#pragma once

#include "adsdef.h"

// Prints on the command line [prints]. The conversions are those of the wide printf family: %s
// takes a wide text. No line feed is added, and a text of any length comes out whole. Before a
// command line stands and after it is gone the text goes to standard output.
// RTNORM; RTERROR for a null format or when standard output cannot be written.
int acutPrintf(const ACHAR* format, ...);

// Direction from pt1 to pt2 in their XY plane [rad], counter-clockwise from the X axis, at least 0
// and less than 2 pi. Z does not count. Equal points give 0. The coordinates are taken as they are
// and are not converted, so both points have to be in one system, normally [ucs].
ads_real acutAngle(const ads_point pt1, const ads_point pt2);
