// A conservative filter for the point tests.
#pragma once

#include "hostapi/host.h"

// The rectangle of an outline with a guard band along its edges. The point tests take their time
// over points near the edges, where tolerances and angles decide; nearly all points of a grid lie
// elsewhere, and four distances tell where.
class RectangleFilter
{
public:
    // corners    in order, either turn, all in one system, drawing units. The filter decides
    //            nothing unless they make a rectangle at the elevation.
    // elevation  z of the corners and of every point asked for
    //
    // The guard band is four times as wide as the largest tolerance of the point tests, as the
    // host's tolerances stand: no rounding reaches over it. It is at least a millionth of the
    // outline's size: seen from there the corners lack 8e-6 of the full turn, and the angle-sum
    // test notices 1e-6.
    RectangleFilter(const AcGePoint3d (&corners)[4], double elevation);

    // Returns 1 inside, -1 outside, 0 where the point test has to decide: in the guard band, and
    // everywhere when the corners make no rectangle.
    int locate(const AcGePoint3d& P) const;

private:
    AcGePoint3d m_corner;
    AcGeVector3d m_along;  // unit vectors of the edges that meet at the corner
    AcGeVector3d m_up;
    double m_width;
    double m_height;
    double m_guard;  // infinite when the filter decides nothing
};
