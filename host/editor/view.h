// Changes the view of model space.
#pragma once

#include "gemat3d.h"
#include "host/database/viewframe.h"

namespace host
{
// Returns the same angle [rad] in [0, 2 pi), or 0 for an infinity or a NaN.
double inFullTurn(double radians);

// Changes the direction of view [wcs] and the twist [rad]. Any twist is accepted and stored in [0,
// 2 pi). The point in the middle of the screen stays there.
void turnView(View& view, const AcGeVector3d& direction, double twist);

// Makes the view look straight at the XY plane of a coordinate system, with its X axis to the
// right.
void planView(View& view, const AcGeMatrix3d& frame);
}  // namespace host
