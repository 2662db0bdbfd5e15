// Makes, erases and groups objects of the drawing in the host's working database.
//
// CONTRIBUTING.md defines the tags. Angles are counter-clockwise. These functions do not keep texts
// and arrays after the call, and they do not print.
#pragma once

#include "hostapi/host.h"

// Appends a new entity to the named block, closes it and sets id.
//
// entity  [adopted], even if the call fails: the caller must not delete it. A refused entity
//         belongs to no database and is never deleted, because the host may have noted its address
//         before it refused. A few lost bytes in a rare case are better than a dangling address.
//
// Returns eOk, eNoDatabase without a drawing, or the status of the step that the host refused:
// opening the block table, opening the block or appending the entity.
Acad::ErrorStatus appendToBlock(AcDbEntity* entity, AcDbObjectId& id, const ACHAR* blockName);

// Moves a new entity from the current UCS [ucs] to the world, appends it to the named block and
// draws it at once.
//
// entity  [adopted], as with appendToBlock
//
// Returns the id, or a null id when the host refuses the entity.
AcDbObjectId showEntity(AcDbEntity* entity, const ACHAR* blockName);

// Marks the entity as erased and closes it.
//
// Returns eOk, eCannotBeErasedByCaller when the entity cannot be opened for any reason, or the
// status of the later step that failed. If a later step fails, the entity stays open.
Acad::ErrorStatus eraseEntity(AcDbObjectId id);

// Makes an invisible closed 2D polyline in model space: the rectangle between two opposite corners.
// It is an aid for computations in UCS coordinates. The caller erases it.
//
// corner1, corner2  [ucs]; their x and y become the coordinates of the polyline without a
//                   conversion, and z counts as 0
//
// Returns the id, or a null id when the host refuses the polyline.
AcDbObjectId addHiddenRectangle(const AcGePoint3d& corner1, const AcGePoint3d& corner2);

// Returns whether entities can be put on the layer. If makeUsable is true, the function first
// thaws, unlocks and turns on the layer. Returns false for a null name, for a missing layer and for
// a layer that cannot be opened or changed. The function never creates a layer.
bool makeLayerUsable(const ACHAR* layerName, bool makeUsable);

// Returns whether the linetype is loaded. Returns false for a null name. The function never loads a
// linetype.
bool linetypeExists(const ACHAR* linetypeName);

// Makes a 2D polyline through the points in the plane of the UCS and draws it at once. Its
// lineweight is ByLayer.
//
// points        [ucs] if pointsInUcs is true, otherwise [wcs]; their z in the UCS is dropped. If
//               the last point lies on the first, it is left out and the polyline is closed.
// color         colour index; 0 leaves the drawing's current colour
// layerName     a layer that is unknown or null means the current layer
// linetypeName  a linetype that is unknown or null means Continuous
//
// Returns the id, or a null id for fewer than two points and when the host refuses the polyline.
AcDbObjectId addPolylineFrame(bool pointsInUcs, AcGePoint3dArray points, Adesk::UInt16 color,
                              const ACHAR* layerName, const ACHAR* linetypeName,
                              const ACHAR* blockName);

// Makes a line from start to end and draws it at once. Its lineweight is ByLayer. The parameters
// mean the same as with addPolylineFrame, but z is kept. Returns the id, or a null id when the host
// refuses the line.
AcDbObjectId addLine(bool pointsInUcs, AcGePoint3d start, AcGePoint3d end, Adesk::UInt16 color,
                     const ACHAR* layerName, const ACHAR* linetypeName, const ACHAR* blockName);

// Makes a selectable group of the entities and moves a meter on the status bar meanwhile.
//
// name  the key in the group dictionary and the description; "*" makes an unnamed group
//
// The group leaves out entities that the host refuses. Returns the id of the group, or a null id
// when the dictionary cannot be opened or refuses the group.
AcDbObjectId makeGroup(const AcDbObjectIdArray& ids, const ACHAR* name);
