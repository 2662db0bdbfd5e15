// The grid.
#pragma once

#include "hostapi/host.h"

// Draws a coordinate grid within an outline and returns every entity made, in order of creation.
//
// boundaryId    the outline, a closed 2D polyline in the plane of the current UCS; not changed
// corner1, 2    [wcs] opposite corners of the picked rectangle. Copies, since the steps widen and
//               turn them: the command asks again with the same corners on every preview.
// HorStep       between vertical lines, VertStep between horizontal ones, drawing units
// Color         index of lines and texts; 0 leaves the drawing's current colour
// LookType      0 continuous lines, anything else cross marks with bars of crossSize
// WCSBasePoint  0 along the world axes, anything else along the axes of the current UCS
// basePoint     [wcs] lines pass through it and labels count from it
// needText      labels where lines meet the outline: prefix and value with iCountSigns decimals,
//               heightText high; the eight flags say on which edges X and Y are labelled.
//               None where that height is not set or else cannot be measured.
// localeName    selects the language of the one error text (output/language.h)
//
// Empty when the boundary cannot be opened and when corners or steps are no usable numbers (not
// set, NaN, infinite, a step that is not positive), or when there would be more than maxNodes
// nodes: options come from a file that anyone may edit. Lines that the host refuses are left out.
//
// Works at survey coordinates: for the length of the call the host's equalPoint is raised to the
// rounding of the coordinates in hand where that is coarser.
AcDbObjectIdArray buildGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                            double HorStep, double VertStep, Adesk::UInt16 Color, double crossSize,
                            int LookType, int WCSBasePoint, AcGePoint3d basePoint, bool needText,
                            double heightText, int iCountSigns, bool bXTopScribe,
                            bool bXBottomScribe, bool bXLeftScribe, bool bXRightScribe,
                            bool bYTopScribe, bool bYBottomScribe, bool bYLeftScribe,
                            bool bYRightScribe, const CString& textXScribe,
                            const CString& textYScribe, const CString& textStyleName,
                            const CString& localeName);
