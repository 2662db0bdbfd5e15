// Where a point lies, asked in full for every point: angles all round, no quick look, nothing kept.
// Results and tolerances are those of engine/pointtests.h; nothing is shared with it.
#pragma once

#include "hostapi/host.h"

namespace relations::plain
{
// Only the first four points count; -99 for fewer.
int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points);
int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve);
// Closer than 1e-6 to one of the list.
bool containsPoint(const AcGePoint3dArray& list, const AcGePoint3d& P);
}  // namespace relations::plain
