// The grid as the user sees it before accepting it.
#pragma once

#include "command/corners.h"

// Shows the grid in the rectangle until the user accepts it or cancels [prints]. Every other answer
// rebuilds the grid. The Settings keyword opens the dialog first, which may change the settings of
// the run.
//
// Returns true when the user accepts; gridIds then holds the entities of the grid. It is empty when
// the user refused a very dense grid and then accepted the empty rectangle. Returns false when the
// user cancels and when the host fails too often in a row (command/promptfailures.h). The grid and
// the outline are then erased.
bool offerGrid(GridRun& run, const PickedRectangle& rectangle, AcDbObjectIdArray& gridIds);
