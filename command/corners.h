// The prompts for the corners, and the rectangle between them.
#pragma once

#include "command/gridrun.h"

// Asks until a point is given; the Settings keyword edits the settings of the run. False: the user
// cancelled, the host failed with RTERROR or in another way again and again.
bool askFirstCorner(GridRun& run, AcGePoint3d& cornerUcs);

// Asks once. False: no point was given.
bool askOtherCorner(const Messages& messages, const AcGePoint3d& firstUcs, AcGePoint3d& cornerUcs);

struct PickedRectangle
{
    AcDbObjectId boundaryId;  // the outline in the drawing; null if it could not be made
    AcGePoint3d firstCorner;  // [wcs]
    AcGePoint3d otherCorner;  // [wcs]
    double width;             // along the UCS axes, drawing units, never negative
    double height;
};

// Draws the outline and tells where it lies.
PickedRectangle drawRectangle(const AcGePoint3d& firstUcs, const AcGePoint3d& otherUcs);
