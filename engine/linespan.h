// Tells for all points of a grid line at once where they lie.
#pragma once

#include "hostapi/host.h"

// The parts of a line along X or Y whose points certainly lie inside or outside an outline. The
// bounds are coordinates along the line, in drawing units. Points that lie between an outer and an
// inner bound are left to the point tests, because near the outline tolerances and angles decide.
struct LineSpan
{
    double outerLow;
    double innerLow;  // above innerHigh when no point is certainly inside
    double innerHigh;
    double outerHigh;

    // Returns 1 inside, -1 outside and 0 where the point test must decide.
    int locate(double at) const
    {
        return at > innerLow && at < innerHigh ? 1 : at < outerLow || at > outerHigh ? -1 : 0;
    }
};

// Returns the span of the line through P along an axis, 0 for X and 1 for Y. Only the coordinate of
// P along the axis may be a number that is not measurable.
//
// outline  in the system of P. The first four points are the corners in order, clockwise or
//          counter-clockwise. If they are not a rectangle at the z of P, the span decides nothing.
//
// Between the outer and the inner bounds lies a guard band along the edges. It is four times as
// wide as the largest current tolerance of the point tests, so rounding cannot reach across it. It
// is at least a millionth of the outline's size wide. Seen from that distance, the angles between
// the corners differ from the full turn by 8e-6, and the angle-sum test notices a difference of
// 1e-6. The width is measured across the edge. A line that hardly slopes towards the edge has a
// long way through the band, and the rounding of a bound moves it across the edge no further than
// on a steep line.
LineSpan lineSpan(const AcGePoint3dArray& outline, const AcGePoint3d& P, int axis);
