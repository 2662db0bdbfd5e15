// Tells whether the coordinates of points and vectors are finite: neither infinite nor NaN.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
inline bool isFinite(const AcGeVector3d& vector)
{
    // Zero times a number is zero unless the number is not finite. The test runs for every line of
    // a drawing.
    return vector.x * 0 + vector.y * 0 + vector.z * 0 == 0;
}

inline bool isFinite(const AcGePoint3d& point)
{
    return isFinite(point.asVector());
}
}  // namespace host
