// An area bounded by loops. This is the part of the MPolygon enabler that tells inside from
// outside.
#pragma once

#include "dbents.h"
#include "gegbl.h"

// An array of whole numbers; see acarray.h.
typedef AcArray<int> AcGeIntArray;

// An area that one or more loops bound.
class AcDbMPolygon : public AcDbEntity
{
public:
    ACRX_DECLARE_MEMBERS(AcDbMPolygon)

    // Creates an area without loops.
    AcDbMPolygon();
    ~AcDbMPolygon();

    // Adds a copy of the boundary as a loop [write]. The boundary need not be in a database; tol
    // has no effect. Returns eInvalidInput for a boundary that is null, open or has fewer than
    // three corners, and, when `excludeCrossing` is set, for one that crosses an existing loop.
    Acad::ErrorStatus appendLoopFromBoundary(const AcDb2dPolyline* boundary,
                                             bool excludeCrossing = true,
                                             double tol = AcGeContext::gTol.equalPoint());
    // Returns how many loops hold the point [wcs] and sets `loops` to their numbers, which count
    // from 0 [read]. A point within tol of a loop, in drawing units, counts as inside. The result 0
    // means that the point is outside.
    int isPointInsideMPolygon(const AcGePoint3d& worldPoint, AcGeIntArray& loops,
                              double tol = AcGeContext::gTol.equalPoint()) const;

    // Transforms the loops as AcDbEntity describes.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& matrix) override;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
