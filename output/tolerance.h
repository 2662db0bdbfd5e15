// Tolerances that hold at survey coordinates.
//
// Doubles near 10^7 lie 2e-9 apart, so there a fixed 1e-10 asks for more than a coordinate can say:
// a point computed twice is two points. Where a tolerance is finer than the rounding of the
// coordinates in hand, that rounding takes its place. Below about 28 000 units nothing changes.
#pragma once

#include "app/host.h"

// Whether distances can be taken with it: no NaN, not infinite, and its square does not overflow.
bool isMeasurable(double coordinate);
bool isMeasurable(const AcGePoint3d& point);

// Largest absolute coordinate of the point; those that are not measurable do not count.
double largestCoordinate(const AcGePoint3d& point);

// The tolerance, or the rounding of coordinates of that size where it is coarser.
double atLeastRounding(double tolerance, double largestCoordinate);

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
