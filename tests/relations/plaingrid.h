// The reference implementation of the grid, step by step: every point is tested in full, every
// drawn piece computes the label points of its line, and no result is reused for the next piece. It
// uses the module's functions that create entities and format numbers, but no code of the engine.
//
// It is too slow for real drawings. The engine with all its optimisations must draw exactly the
// same grid.
#pragma once

#include "hostapi/host.h"

namespace relations
{
// Selects the line that is extended to the outline for label points.
enum class CarriedOn
{
    wholeLine,  // the line of the piece, from end to end of the grid: the engine's way
    piece,      // the piece as the drawing keeps it; the same line but for rounding
};

// Draws a grid as buildGrid in engine/buildgrid.h does.
template <CarriedOn carriedOn>
AcDbObjectIdArray buildPlainGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                                 double HorStep, double VertStep, Adesk::UInt16 Color,
                                 double crossSize, int LookType, int WCSBasePoint,
                                 AcGePoint3d basePoint, bool needText, double heightText,
                                 int iCountSigns, bool bXTopScribe, bool bXBottomScribe,
                                 bool bXLeftScribe, bool bXRightScribe, bool bYTopScribe,
                                 bool bYBottomScribe, bool bYLeftScribe, bool bYRightScribe,
                                 const CString& textXScribe, const CString& textYScribe,
                                 const CString& textStyleName, const CString& localeName);
}  // namespace relations
