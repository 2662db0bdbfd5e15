// The prompts for the corners and the rectangle between them.
#pragma once

#include "command/gridrun.h"

// Asks for the first corner until the user gives a point [prints]. The Settings keyword opens the
// dialog, which may change the settings of the run. Returns true when cornerUcs [ucs] holds the
// point. Returns false when the user cancels, when the host answers RTERROR, and when the host
// fails too often in a row (command/promptfailures.h).
bool askFirstCorner(GridRun& run, AcGePoint3d& cornerUcs);

// Asks once for the corner opposite to firstUcs [ucs] [prints]. Returns true when cornerUcs [ucs]
// holds the point and false when the user gave no point.
bool askOtherCorner(const Messages& messages, const AcGePoint3d& firstUcs, AcGePoint3d& cornerUcs);

// The rectangle that the user picked.
struct PickedRectangle
{
    AcDbObjectId boundaryId;  // the outline in the drawing; null if the host refused it
    AcGePoint3d firstCorner;  // [wcs]
    AcGePoint3d otherCorner;  // [wcs]
    double width;             // along the X axis of the UCS, drawing units, never negative
    double height;            // along the Y axis of the UCS, drawing units, never negative
};

// Draws the outline between two opposite corners [ucs] and returns the rectangle.
PickedRectangle drawRectangle(const AcGePoint3d& firstUcs, const AcGePoint3d& otherUcs);
