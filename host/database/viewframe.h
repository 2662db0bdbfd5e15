// The system of coordinates that a view shows.
#pragma once

#include "host/database/drawingstate.h"

namespace host
{
// Display coordinates to [wcs]: X to the right and Y upwards on the screen, Z to the viewer, the
// origin at the target.
AcGeMatrix3d viewFrame(const View& view);
}  // namespace host
