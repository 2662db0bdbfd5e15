// The grid.
#pragma once

#include "engine/gridrequest.h"

// Draws a coordinate grid within an outline and returns every entity made, in order of creation.
//
// boundaryId  the outline, a closed 2D polyline in the plane of the current UCS; not changed
// request     corner1 and corner2 [wcs] are opposite corners of the picked rectangle; the other
//             options are described with GridSettings
//
// The result is empty when the boundary cannot be opened, when corners or steps are no usable
// numbers (not set, NaN, infinite, a step that is not positive), and when there would be more than
// maxNodes nodes: options come from a file that anyone may edit. Lines that the host refuses are
// left out. A text height that is not set or cannot be measured leaves the labels out.
//
// The function works at survey coordinates: for the length of the call the host's equalPoint is
// raised to the rounding of the coordinates in hand where that is coarser.
AcDbObjectIdArray drawGrid(AcDbObjectId boundaryId, const GridRequest& request);

// The same with each option by itself, for callers without a record of settings.
AcDbObjectIdArray buildGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                            double HorStep, double VertStep, Adesk::UInt16 Color, double crossSize,
                            int LookType, int WCSBasePoint, AcGePoint3d basePoint, bool needText,
                            double heightText, int iCountSigns, bool bXTopScribe,
                            bool bXBottomScribe, bool bXLeftScribe, bool bXRightScribe,
                            bool bYTopScribe, bool bYBottomScribe, bool bYLeftScribe,
                            bool bYRightScribe, const CString& textXScribe,
                            const CString& textYScribe, const CString& textStyleName,
                            const CString& localeName);
