// Curves.
#pragma once

#include "dbmain.h"

// An entity with a nearest point: a line or a polyline.
class AcDbCurve : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbCurve)

    // Sets onCurve to the point of the curve nearest to given; both [wcs] [read]. The closing side
    // of a closed curve belongs to it. eInvalidInput for a polyline of fewer than two vertices,
    // eNotImplementedYet for `extend`; onCurve is as it was then.
    virtual Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                                Adesk::Boolean extend = Adesk::kFalse) const = 0;
    // Whether the end is joined to the start.
    virtual Adesk::Boolean isClosed() const = 0;
};
