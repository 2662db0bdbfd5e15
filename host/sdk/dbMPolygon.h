// Area bounded by loops; the part of the MPolygon enabler that tells inside from outside.
#pragma once

#include "dbents.h"
#include "gegbl.h"

// An array of whole numbers; see acarray.h.
typedef AcArray<int> AcGeIntArray;

// An area with one or more loops as its border.
class AcDbMPolygon : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbMPolygon)

    // Without loops.
    AcDbMPolygon();
    ~AcDbMPolygon();

    // Adds a copy of the boundary as a loop [write]. The boundary need not be in a database; tol
    // has no effect. eInvalidInput for a null boundary, for one that is open or has fewer than
    // three corners, and, when `excludeCrossing` is set, for one that crosses a loop that is there.
    Acad::ErrorStatus appendLoopFromBoundary(const AcDb2dPolyline* boundary,
                                             bool excludeCrossing = true,
                                             double tol = AcGeContext::gTol.equalPoint());
    // Returns how many loops hold the point [wcs] and sets `loops` to their numbers, from 0 on
    // [read]. A point within tol, in drawing units, of a loop counts as inside. 0 means outside.
    int isPointInsideMPolygon(const AcGePoint3d& worldPoint, AcGeIntArray& loops,
                              double tol = AcGeContext::gTol.equalPoint()) const;

    // As said in AcDbEntity.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
