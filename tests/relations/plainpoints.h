// Tests in full where each point lies: all angles are summed, without a shortcut and without a
// stored result. Results and tolerances are those of engine/pointtests.h, but no code is shared
// with it.
#pragma once

#include "hostapi/host.h"

namespace relations::plain
{
// Tells where P lies relative to the first four points. Returns -99 for fewer than four.
int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points);
int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve);
// Tells whether P is closer than 1e-6 to a point of the list.
bool containsPoint(const AcGePoint3dArray& list, const AcGePoint3d& P);
}  // namespace relations::plain
