// Coordinates in a frame such as the user's coordinate system.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"

namespace host
{
// The coordinates of pointWcs in the frame whose matrix carries frame coordinates to the world's.
// The origin is taken off before turning: the product with the inverse matrix would take the
// difference of two turned points, each rounded at the size of world coordinates.
inline AcGePoint3d worldToFrame(const AcGeMatrix3d& frame, const AcGePoint3d& pointWcs)
{
    return AcGePoint3d() + frame.inverse() * (pointWcs.asVector() - frame.translation());
}
}  // namespace host
