// Tolerances that hold at survey coordinates.
//
// Doubles near 10^7 lie 2e-9 apart, so there a fixed 1e-10 asks for more than a coordinate can say:
// a point computed twice is two points. Where a tolerance is finer than the rounding of the
// coordinates in hand, that rounding takes its place. Below about 28 000 units nothing changes.
// Inline, as it is asked for every end of every piece.
#pragma once

#include <algorithm>
#include <cfloat>
#include <cmath>

#include "hostapi/host.h"

// Whether distances can be taken with it: no NaN, not infinite, and its square does not overflow.
inline bool isMeasurable(double coordinate)
{
    return std::fabs(coordinate) <= 1e150;
}

inline bool isMeasurable(const AcGePoint3d& point)
{
    return isMeasurable(point.x) && isMeasurable(point.y) && isMeasurable(point.z);
}

// Largest absolute coordinate of the point; those that are not measurable do not count.
inline double largestCoordinate(const AcGePoint3d& point)
{
    const double x = isMeasurable(point.x) ? std::fabs(point.x) : 0;
    const double y = isMeasurable(point.y) ? std::fabs(point.y) : 0;
    const double z = isMeasurable(point.z) ? std::fabs(point.z) : 0;
    return (std::max)((std::max)(x, y), z);
}

// The tolerance, or the rounding of coordinates of that size where it is coarser.
inline double atLeastRounding(double tolerance, double largestCoordinate)
{
    // Measured in 12 000 plain, turned and tilted frames at coordinates up to 1e7: the ends of
    // lines lay up to 2.1 of these units off the edge that they were cut at, and a point taken to
    // a tilted frame and back up to 9.6 off itself. 16 leaves room and is still 4e-8 at 1e7.
    const double units = 16;
    return (std::max)(tolerance, units * DBL_EPSILON * largestCoordinate);
}

// Sets the host's global equalPoint and gives the former one back on every way out.
class BorrowedTolerance
{
public:
    explicit BorrowedTolerance(double equalPoint);
    ~BorrowedTolerance();

private:
    BorrowedTolerance(const BorrowedTolerance&);
    BorrowedTolerance& operator=(const BorrowedTolerance&);

    double m_former;
};
