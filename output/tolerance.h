// Tolerances that hold at survey coordinates.
//
// Doubles near 10^7 lie 2e-9 apart. A fixed tolerance of 1e-10 is finer than such coordinates can
// express: the same point computed twice would be two points. Where a tolerance is finer than the
// rounding of the coordinates, the rounding replaces it. Below about 28 000 units nothing changes.
//
// The functions are inline, because they are called for every end of every piece.
#pragma once

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "hostapi/host.h"

// Returns whether distances can be computed with the coordinate: it is neither NaN nor infinite,
// and its square does not overflow.
inline bool isMeasurable(double coordinate)
{
    return std::fabs(coordinate) <= 1e150;
}

// Returns whether all three coordinates of the point are measurable.
inline bool isMeasurable(const AcGePoint3d& point)
{
    return isMeasurable(point.x) && isMeasurable(point.y) && isMeasurable(point.z);
}

// Returns the largest absolute value of the point's coordinates, in drawing units. Coordinates that
// are not measurable are ignored.
inline double largestCoordinate(const AcGePoint3d& point)
{
    const double x = isMeasurable(point.x) ? std::fabs(point.x) : 0;
    const double y = isMeasurable(point.y) ? std::fabs(point.y) : 0;
    const double z = isMeasurable(point.z) ? std::fabs(point.z) : 0;
    return (std::max)((std::max)(x, y), z);
}

// Returns the larger of the tolerance and the rounding of coordinates of the given size, in drawing
// units.
inline double atLeastRounding(double tolerance, double largestCoordinate)
{
    // The number rests on measurements in 12 000 plain, turned and tilted frames at coordinates up
    // to 1e7. The ends of lines lay up to 2.1 of these units off the edge at which they were cut. A
    // point that was converted to a tilted frame and back moved by up to 9.6 units. 16 leaves room
    // and is still only 4e-8 at 1e7.
    const double units = 16;
    return (std::max)(tolerance, units * DBL_EPSILON * largestCoordinate);
}

// Replaces the host's global equalPoint while this object lives.
class BorrowedTolerance
{
public:
    // Sets equalPoint, in drawing units.
    explicit BorrowedTolerance(double equalPoint);

    // Restores the former equalPoint.
    ~BorrowedTolerance();

private:
    BorrowedTolerance(const BorrowedTolerance&);
    BorrowedTolerance& operator=(const BorrowedTolerance&);

    double m_former;
};
