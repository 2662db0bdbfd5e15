// The grid as the user sees it before he takes it.
#pragma once

#include "command/corners.h"

// Shows the grid in the rectangle, rebuilt at every answer, until the user takes it or cancels.
//
// True: taken, and gridIds holds the grid's entities; none if the user refused a very dense grid
// and then took the empty rectangle. False: cancelled, or the host failed to ask again and again;
// the grid and the outline are erased.
// The Settings keyword edits the settings of the run.
bool offerGrid(GridRun& run, const PickedRectangle& rectangle, AcDbObjectIdArray& gridIds);
