// How near is the same place, for what the host computes from stored coordinates.
#pragma once

#include <algorithm>
#include <cfloat>

#include "gegbl.h"

namespace host
{
// The shared point tolerance, or what rounding alone may cost where the coordinates are so large
// that it costs more. Drawing units.
//
// reach is the error's leverage: a position computed from a line's two ends carries the error of
// both, and where the line is carried on by n times its length, about 2n times that.
//
// The factor is measured. A plane outline turned and tilted at random, at coordinates up to 1e7,
// stored in its own plane and read back, meets the lines of its own grid with errors of up to
// 2 times DBL_EPSILON times the largest coordinate for each unit of reach: out of the plane, at
// the ends of either line and after lengthening the line a hundredfold. Four times that is allowed,
// since a corner is found on both of its edges and the two may be off to opposite sides, the more
// the flatter the line comes in. At 1e7 and with reach 2 it makes 4e-8 units; up to 2e4 the shared
// tolerance is the larger one.
inline double pointTolerance(double largestCoordinate, double reach = 1)
{
    return std::max(AcGeContext::gTol.equalPoint(), 8 * DBL_EPSILON * largestCoordinate * reach);
}
}  // namespace host
