// The coordinate system of a view.
#pragma once

#include "host/database/drawingstate.h"

namespace host
{
// Returns the matrix from display coordinates to [wcs]. On the screen X points to the right, Y
// upwards and Z to the viewer. The origin is at the target.
AcGeMatrix3d viewFrame(const View& view);
}  // namespace host
