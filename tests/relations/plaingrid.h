// The grid once more, step by step as it is meant: every point is tested in full, every piece that
// is drawn asks for the label points of its line, nothing is remembered from piece to piece. It
// takes from the module what makes entities and writes numbers, and nothing of the engine.
//
// Too slow for a drawing; the engine's own, with all its short cuts, must draw the very same.
#pragma once

#include "hostapi/host.h"

namespace relations
{
// Which line is carried on to the outline for label points.
enum class CarriedOn
{
    wholeLine,  // the line of the piece, from end to end of the grid: the engine's way
    piece,      // the piece as the drawing keeps it; the same line but for rounding
};

// As buildGrid in engine/buildgrid.h.
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
