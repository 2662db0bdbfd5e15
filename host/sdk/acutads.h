// Small utilities of the editor.
#pragma once

#include "adsdef.h"

// Prints on the command line [prints]. The conversions are those of the wide printf family: %s
// takes a wide text. No line feed is added. A text of any length is printed in full. When no
// command line exists, the text goes to standard output. Returns RTNORM, or RTERROR for a null
// format or when standard output cannot be written.
int acutPrintf(const ACHAR* format, ...);

// Returns the direction from pt1 to pt2 in their XY plane [rad], counter-clockwise from the X axis,
// at least 0 and less than 2 pi. Z is ignored. Equal points give 0. The coordinates are not
// converted, so both points must be in one system, normally [ucs].
ads_real acutAngle(const ads_point pt1, const ads_point pt2);
