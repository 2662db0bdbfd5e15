// The entry of the engine: it draws a whole grid.
#pragma once

#include "engine/gridrequest.h"

// Draws a coordinate grid within an outline and returns every entity made, in order of creation.
//
// boundaryId  the outline, a closed 2D polyline in the plane of the current UCS; it is not changed
// request     corner1 and corner2 [wcs] are opposite corners of the picked rectangle; GridSettings
//             describes the options
//
// The result is empty when the boundary cannot be opened, when a corner or a step is not a usable
// number (not set, NaN, infinite, or a step that is not positive), and when the grid would have
// more than maxNodes nodes. These cases occur because anyone may edit the file of the options. The
// grid leaves out lines that the host refuses. It has no labels when the text height is not set or
// cannot be measured.
//
// The function works at survey coordinates. During the call the host's equalPoint is raised to the
// rounding of the coordinates wherever that rounding is coarser.
AcDbObjectIdArray drawGrid(AcDbObjectId boundaryId, const GridRequest& request);

// Does the same as drawGrid for callers without a record of settings: each option is a parameter
// with the name that it has in GridSettings.
AcDbObjectIdArray buildGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                            double HorStep, double VertStep, Adesk::UInt16 Color, double crossSize,
                            int LookType, int WCSBasePoint, AcGePoint3d basePoint, bool needText,
                            double heightText, int iCountSigns, bool bXTopScribe,
                            bool bXBottomScribe, bool bXLeftScribe, bool bXRightScribe,
                            bool bYTopScribe, bool bYBottomScribe, bool bYLeftScribe,
                            bool bYRightScribe, const CString& textXScribe,
                            const CString& textYScribe, const CString& textStyleName,
                            const CString& localeName);
