// The distance within which two computed points count as one.
#pragma once

#include <algorithm>
#include <cfloat>

#include "gegbl.h"

namespace host
{
// Returns the shared point tolerance or the error that rounding alone may cause at such
// coordinates, whichever is larger, in drawing units.
//
// reach is the leverage of the error. A position that is computed from the two ends of a line has
// the errors of both. Where the line is extended by n times its length, the position has about 2n
// times that error.
//
// The factor is measured. A plane outline was rotated and tilted at random, at coordinates up to
// 1e7, stored in its own plane and read back. It meets the lines of its own grid with errors of up
// to 2 times DBL_EPSILON times the largest coordinate for each unit of reach: out of the plane, at
// the ends of either line, and after the line was lengthened a hundredfold. The factor allows four
// times that error, because a corner is found on both of its edges and the two results may be off
// to opposite sides, the more so the smaller the angle between line and edge is. At 1e7 and with
// reach 2 the result is 4e-8 units; up to 2e4 the shared tolerance is the larger one.
inline double pointTolerance(double largestCoordinate, double reach = 1)
{
    return std::max(AcGeContext::gTol.equalPoint(), 8 * DBL_EPSILON * largestCoordinate * reach);
}
}  // namespace host
