// Tells whether the coordinates of points and vectors are finite: neither infinite nor NaN.
#pragma once

#include <cmath>

#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
inline bool isFinite(const AcGePoint3d& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

inline bool isFinite(const AcGeVector3d& vector)
{
    return std::isfinite(vector.x) && std::isfinite(vector.y) && std::isfinite(vector.z);
}
}  // namespace host
