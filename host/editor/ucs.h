// The current UCS of a document.
#pragma once

#include "gemat3d.h"
#include "host/documents/document.h"

namespace host
{
// Convert points and vectors between [ucs] and [wcs], drawing units. The result is exact where the
// axes are the world's. worldToUcs subtracts the origin of the UCS first, so that cancellation far
// from the world's origin loses no digits.
AcGePoint3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGePoint3d& point);
AcGePoint3d worldToUcs(const AcGeMatrix3d& ucs, const AcGePoint3d& point);
AcGeVector3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGeVector3d& vector);
AcGeVector3d worldToUcs(const AcGeMatrix3d& ucs, const AcGeVector3d& vector);

// Returns the origin [wcs] of a coordinate system.
AcGePoint3d originOf(const AcGeMatrix3d& frame);
// Returns an axis [wcs] of a coordinate system: 0, 1 or 2 for X, Y or Z.
AcGeVector3d axisOf(const AcGeMatrix3d& frame, int axis);
// Builds a coordinate system from its origin and axes [wcs].
AcGeMatrix3d frameOf(const AcGePoint3d& origin, const AcGeVector3d& x, const AcGeVector3d& y,
                     const AcGeVector3d& z);
// Tells whether the coordinate system is the world's, within 1e-10.
bool isWorld(const AcGeMatrix3d& frame);

// Makes a coordinate system current and keeps the former one for restorePreviousUcs. Returns false
// and changes nothing for a matrix that is not right-handed and orthonormal within 1e-6.
bool setUcs(Document& document, const AcGeMatrix3d& frame);
// Makes the previous coordinate system current. Returns false when there is no previous system.
bool restorePreviousUcs(Document& document);
}  // namespace host
