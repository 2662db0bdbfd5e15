// Everything that makes, erases or groups objects of the drawing, in the host's working database.
//
// Nothing here prints. Tags, the same in every header of the module:
//   [wcs]       world coordinates, drawing units
//   [ucs]       coordinates in the current UCS, drawing units
//   [rad]       an angle in radians, counter-clockwise
//   [borrowed]  stays the caller's; not kept after the call
//   [adopted]   the callee's from the call on; the caller must not delete it
//   [prints]    writes on the host's command line
#pragma once

#include "hostapi/host.h"

// Appends a new entity to the named block and closes it.
//
// entity [adopted], also when it fails: it is then in no database and nobody's, see below.
// eOk, eNoDatabase without a drawing, or what the host says of the table, the block or the append.
//
// A refused entity is let go, not deleted. The host may have noted its address before it refused;
// a few lost bytes in a case that hardly ever comes are cheaper than a dangling one.
Acad::ErrorStatus appendToBlock(AcDbEntity* entity, AcDbObjectId& id, const ACHAR* blockName);

// Appends a new entity, carried by the current UCS from [ucs] to its place, and shows it at once.
//
// entity [adopted], as above. Null id when the host refuses.
AcDbObjectId showEntity(AcDbEntity* entity, const ACHAR* blockName);

// Marks the entity as erased and closes it.
//
// eCannotBeErasedByCaller when it cannot be opened, whatever the reason; otherwise the status of
// the step that failed, and then the entity stays open.
Acad::ErrorStatus eraseEntity(AcDbObjectId id);

// Makes a closed 2D polyline, the rectangle between two opposite corners, that never shows: an aid
// for computations in UCS coordinates, to be erased by the caller.
//
// corner1, corner2  [ucs]; taken as the numbers of the polyline as they stand, their z as 0.
// Null id when the host refuses.
AcDbObjectId addHiddenRectangle(const AcGePoint3d& corner1, const AcGePoint3d& corner2);

// Whether entities can be put on the layer; makeUsable thaws, unlocks and turns it on first.
// False for null and for a layer that is missing or cannot be changed: none is ever made.
bool makeLayerUsable(const ACHAR* layerName, bool makeUsable);

// False for null and for one that is not loaded: none is ever loaded.
bool linetypeExists(const ACHAR* linetypeName);

// Makes a 2D polyline through the points, by lineweight of the layer, and shows it at once.
//
// points  [ucs] when pointsInUcs, else [wcs]; drawn in the plane of the UCS, their UCS z dropped.
//         When the last lies on the first it is left out and the polyline is closed.
// color   index; 0 leaves the drawing's current colour
// layer   unknown or null: the current one.  linetype  unknown or null: Continuous.
// Null id for fewer than two points and when the host refuses.
AcDbObjectId addPolylineFrame(bool pointsInUcs, AcGePoint3dArray points, Adesk::UInt16 color,
                              const ACHAR* layerName, const ACHAR* linetypeName,
                              const ACHAR* blockName);

// Makes a line in the same way. Null id when the host refuses.
AcDbObjectId addLine(bool pointsInUcs, AcGePoint3d start, AcGePoint3d end, Adesk::UInt16 color,
                     const ACHAR* layerName, const ACHAR* linetypeName, const ACHAR* blockName);

// Makes a selectable group of the entities and moves a meter on the status bar meanwhile.
//
// name  key in the group dictionary and description; "*" makes an unnamed group.
// Entities that the host refuses are left out. Null id when the dictionary does not take the group.
AcDbObjectId makeGroup(const AcDbObjectIdArray& ids, const ACHAR* name);
