// Converts points to the coordinates of a frame such as the user's coordinate system.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"

namespace host
{
// Converts pointWcs [wcs] to the coordinates of a frame; `frame` maps these to [wcs]. The function
// subtracts the origin before it rotates: a product with the inverse matrix would subtract two
// rotated points, each rounded at the size of world coordinates.
inline AcGePoint3d worldToFrame(const AcGeMatrix3d& frame, const AcGePoint3d& pointWcs)
{
    return AcGePoint3d() + frame.inverse() * (pointWcs.asVector() - frame.translation());
}
}  // namespace host
