// Computes a point that can be reached from two sides, with the least rounding.
#pragma once

#include <cmath>

#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// Returns one coordinate of steadyPoint.
inline double steadyCoordinate(double a, double offset, double b, double otherOffset)
{
    return std::abs(offset) <= std::abs(otherOffset) ? a + offset : b + otherOffset;
}

// Returns the point p + offset, which equals q + otherOffset apart from rounding. Each coordinate
// is computed from the side with the smaller offset, so an offset of 0 passes the coordinate on
// unrounded.
inline AcGePoint3d steadyPoint(const AcGePoint3d& p, const AcGeVector3d& offset,
                               const AcGePoint3d& q, const AcGeVector3d& otherOffset)
{
    return {steadyCoordinate(p.x, offset.x, q.x, otherOffset.x),
            steadyCoordinate(p.y, offset.y, q.y, otherOffset.y),
            steadyCoordinate(p.z, offset.z, q.z, otherOffset.z)};
}
}  // namespace host
