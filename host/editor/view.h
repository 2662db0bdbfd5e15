// The view of model space.
#pragma once

#include "gemat3d.h"
#include "host/database/viewframe.h"

namespace host
{
// The same angle in [0, 2 pi); 0 for what is no number.
double inFullTurn(double radians);

// Looks from another side; any twist is taken and kept in [0, 2 pi). What stood in the middle of
// the screen stays there.
void turnView(View& view, const AcGeVector3d& direction, double twist);

// Looks straight at the XY plane of a frame, its X axis to the right.
void planView(View& view, const AcGeMatrix3d& frame);
}  // namespace host
