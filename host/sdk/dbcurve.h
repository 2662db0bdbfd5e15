// The base of lines and polylines.
#pragma once

#include "dbmain.h"

// An entity that has a nearest point to any given point: a line or a polyline.
class AcDbCurve : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbCurve)

    // Sets onCurve to the point of the curve that is nearest to `given`; both are [wcs] [read]. The
    // closing side of a closed curve is part of the curve. Returns eInvalidInput for a polyline
    // with fewer than two vertices and eNotImplementedYet when `extend` is set; onCurve is
    // unchanged then.
    virtual Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                                Adesk::Boolean extend = Adesk::kFalse) const = 0;
    // Tells whether the end of the curve is joined to its start.
    virtual Adesk::Boolean isClosed() const = 0;
};
