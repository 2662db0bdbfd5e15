// Tells whether an entity can be saved. No tag of a drawing file can hold a number that is not
// finite, so one such entity would prevent the whole drawing from being saved.
//
// The rule is this host's own: what the real host does is not known. An entity outside a drawing
// may have any numbers. The append of an unfit entity is refused with eInvalidInput. In a drawing,
// a change that would make an entity unfit is refused with the same status. A refused call changes
// nothing.
#pragma once

#include "dbents.h"

namespace host
{
// Returns true if the entity can be saved.
bool isFit(const AcDbEntity& entity);

// Returns true if the angle [rad] is finite in degrees, too, because files state it in degrees.
bool isAngle(double radians);
// Returns true if the point [wcs] is finite in the coordinates of a plane with that normal, because
// files state it in these coordinates.
bool isFitInPlane(const AcGePoint3d& point, const AcGeVector3d& normal);

inline bool isInDrawing(const AcDbEntity& entity)
{
    return !entity.objectId().isNull();
}
}  // namespace host
