// Whether an entity is fit to be saved. No tag of a drawing's file holds a number that is not
// finite, so one such entity would keep the whole drawing from being saved.
//
// This host's own rule: what the real one does is not known. Until it joins a drawing an entity may
// have any numbers; the append refuses it then, and in a drawing every change that would make it
// unfit is refused. Both with eInvalidInput, and nothing is changed.
#pragma once

#include "dbents.h"

namespace host
{
bool isFit(const AcDbEntity& entity);

// Whether the angle [rad] stays finite in degrees, in which it is written.
bool isAngle(double radians);
// A point of a plane with that normal is written in the plane's own coordinates.
bool isFitInPlane(const AcGePoint3d& point, const AcGeVector3d& normal);

inline bool isInDrawing(const AcDbEntity& entity)
{
    return !entity.objectId().isNull();
}
}  // namespace host
