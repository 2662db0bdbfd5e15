// A conservative filter for the point tests: it answers the clear cases quickly.
#pragma once

#include "hostapi/host.h"

// The rectangle of an outline with a guard band along its edges. The point tests are slow, because
// near the edges tolerances and angles decide. Nearly all points of a grid lie far from the edges,
// and four distances are enough to tell where they lie.
class RectangleFilter
{
public:
    // corners    the corners in order, clockwise or counter-clockwise, all in the same system, in
    //            drawing units. If they are not a rectangle at the elevation, the filter decides
    //            nothing.
    // elevation  z of the corners and of every tested point
    //
    // The guard band is four times as wide as the largest current tolerance of the point tests, so
    // rounding cannot reach across it. It is at least a millionth of the outline's size wide. Seen
    // from that distance, the angles between the corners differ from the full turn by 8e-6, and the
    // angle-sum test notices a difference of 1e-6.
    RectangleFilter(const AcGePoint3d (&corners)[4], double elevation);

    // Returns 1 inside, -1 outside and 0 where the point test has to decide. The point test has to
    // decide in the guard band, and everywhere if the corners are not a rectangle.
    int locate(const AcGePoint3d& P) const;

private:
    AcGePoint3d m_corner;
    AcGeVector3d m_along;  // unit vectors of the edges that meet at the corner
    AcGeVector3d m_up;
    double m_width;
    double m_height;
    double m_guard;  // infinite when the filter decides nothing
};
