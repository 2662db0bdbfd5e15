// The current UCS of a document.
#pragma once

#include "gemat3d.h"
#include "host/documents/document.h"

namespace host
{
// Exact where the axes are the world's; far from the world's origin the origin of the UCS is taken
// off first, so that nothing is lost by cancellation.
AcGePoint3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGePoint3d& point);
AcGePoint3d worldToUcs(const AcGeMatrix3d& ucs, const AcGePoint3d& point);
AcGeVector3d ucsToWorld(const AcGeMatrix3d& ucs, const AcGeVector3d& vector);
AcGeVector3d worldToUcs(const AcGeMatrix3d& ucs, const AcGeVector3d& vector);

AcGePoint3d originOf(const AcGeMatrix3d& frame);
// 0, 1, 2 for X, Y, Z.
AcGeVector3d axisOf(const AcGeMatrix3d& frame, int axis);
AcGeMatrix3d frameOf(const AcGePoint3d& origin, const AcGeVector3d& x, const AcGeVector3d& y,
                     const AcGeVector3d& z);
bool isWorld(const AcGeMatrix3d& frame);

// Makes a frame current and puts the former one on the list of previous ones. False, and nothing
// done, for a matrix that is not right-handed and orthonormal within 1e-6.
bool setUcs(Document& document, const AcGeMatrix3d& frame);
// False when there is no previous one.
bool restorePreviousUcs(Document& document);
}  // namespace host
