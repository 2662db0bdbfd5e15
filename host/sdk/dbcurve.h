// Curves.
#pragma once

#include "dbmain.h"

class AcDbCurve : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbCurve)

    // eInvalidInput on a curve without length, eNotImplementedYet for `extend`.
    virtual Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                                Adesk::Boolean extend = Adesk::kFalse) const = 0;
    virtual Adesk::Boolean isClosed() const = 0;
};
