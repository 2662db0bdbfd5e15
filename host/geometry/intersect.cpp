#include "host/geometry/intersect.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "gevec3d.h"
#include "host/geometry/steadypoint.h"
#include "host/geometry/tolerance.h"

namespace host
{
namespace
{
double largestCoordinate(const StraightPiece& piece)
{
    return std::max({std::abs(piece.start.x), std::abs(piece.start.y), std::abs(piece.start.z),
                     std::abs(piece.end.x), std::abs(piece.end.y), std::abs(piece.end.z)});
}

// Returns how many times the errors of the ends affect the point at the parameter: once between the
// ends, more often beyond them.
double leverage(double parameter)
{
    return std::abs(parameter) + std::abs(1 - parameter);
}

bool reaches(const StraightPiece& piece, double length, double parameter, double tolerance)
{
    return piece.extended ||
           (parameter * length >= -tolerance && (parameter - 1) * length <= tolerance);
}
}  // namespace

std::optional<Crossing> crossing(const StraightPiece& asking, const StraightPiece& other)
{
    const AcGeVector3d along = asking.end - asking.start;
    const AcGeVector3d alongOther = other.end - other.start;
    const AcGeVector3d square = along.crossProduct(alongOther);
    const double length = along.length();
    const double otherLength = alongOther.length();
    const double largest = std::max(largestCoordinate(asking), largestCoordinate(other));

    // The pieces are parallel if their directions differ by no more than the errors of the ends can
    // turn them. The condition is negated so that a NaN gives no crossing.
    if (!(square.length() > pointTolerance(largest) * (length + otherLength)))
    {
        return std::nullopt;
    }
    const AcGeVector3d between = other.start - asking.start;
    const double whole = square.lengthSqrd();
    const double at = between.crossProduct(alongOther).dotProduct(square) / whole;
    const double atOther = between.crossProduct(along).dotProduct(square) / whole;

    const double tolerance = pointTolerance(largest, leverage(at) + leverage(atOther));
    const double apart = std::abs(between.dotProduct(square)) / square.length();
    if (apart > tolerance || !reaches(asking, length, at, tolerance) ||
        !reaches(other, otherLength, atOther, tolerance))
    {
        return std::nullopt;
    }
    return Crossing{at, steadyPoint(asking.start, along * at, other.start, alongOther * atOther),
                    tolerance};
}

void arrangeFarEndFirst(std::vector<Crossing>& found)
{
    std::ranges::sort(found, std::greater(), &Crossing::parameter);
    const auto isSamePlace = [](const Crossing& a, const Crossing& b)
    { return a.point.distanceTo(b.point) <= std::max(a.tolerance, b.tolerance); };
    found.erase(std::unique(found.begin(), found.end(), isSamePlace), found.end());
}
}  // namespace host
