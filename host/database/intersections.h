// Geometry that several entities share.
#pragma once

#include "dbents.h"

namespace host
{
// True for a matrix without shear or unequal scales (a mirror included), within 1e-6.
bool keepsAngles(const AcGeMatrix3d& matrix);

// Appends the points that `line` has in common with a line or a 2D polyline: in decreasing order
// along the line, nearer ones than the point tolerance once. Parts that run along each other give
// none. An extended line has no ends; a polyline is never extended.
Acad::ErrorStatus intersectLine(const AcDbLine& line, const AcDbEntity& other, AcDb::Intersect type,
                                AcGePoint3dArray& points);

// The point of segment a-b nearest to p.
AcGePoint3d closestOnSegment(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& p);
}  // namespace host
