// Area bounded by loops; the part of the MPolygon enabler that tells inside from outside.
#pragma once

#include <vector>

#include "dbents.h"
#include "gegbl.h"

typedef AcArray<int> AcGeIntArray;

class AcDbMPolygon : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbMPolygon)

    // eInvalidInput for a boundary that is open or has fewer than three corners, or that crosses a
    // loop already there when `excludeCrossing` is set.
    Acad::ErrorStatus appendLoopFromBoundary(const AcDb2dPolyline* boundary,
                                             bool excludeCrossing = true,
                                             double tol = AcGeContext::gTol.equalPoint());
    // How many loops hold the point, their numbers in `loops`. On a loop within tol counts as in
    // it.
    int isPointInsideMPolygon(const AcGePoint3d& worldPoint, AcGeIntArray& loops,
                              double tol = AcGeContext::gTol.equalPoint()) const;

    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

private:
    std::vector<std::vector<AcGePoint3d>> m_loops;
};
