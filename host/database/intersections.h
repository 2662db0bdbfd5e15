// Geometry that several kinds of entities use.
#pragma once

#include "dbents.h"

namespace host
{
// Returns true for a matrix without shear and with equal scales, within 1e-6. A mirror counts as
// such a matrix.
bool keepsAngles(const AcGeMatrix3d& matrix);

// Appends the points [wcs] that `line` has in common with a line or a 2D polyline, in decreasing
// order along the line. Points nearer to each other than the point tolerance are appended once.
// Parts that overlap along their length give no points. An extended line has no ends; a polyline is
// never extended. Returns eOk, or eNotImplementedYet for any other entity.
Acad::ErrorStatus intersectLine(const AcDbLine& line, const AcDbEntity& other, AcDb::Intersect type,
                                AcGePoint3dArray& points);

// Returns the point of segment a-b nearest to p.
AcGePoint3d closestOnSegment(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& p);
}  // namespace host
