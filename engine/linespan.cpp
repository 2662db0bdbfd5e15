#include "engine/linespan.h"

#include <algorithm>
#include <cmath>

#include "engine/pointtests.h"
#include "output/tolerance.h"

namespace
{
bool isRectangle(const AcGePoint3dArray& outline, double elevation)
{
    if (outline.length() < 4)
    {
        return false;
    }
    const double tolerance = AcGeContext::gTol.equalPoint();
    const AcGeVector3d along = outline[1] - outline[0];
    const AcGeVector3d up = outline[3] - outline[0];
    const double shorter = (std::min)(along.length(), up.length());
    bool isLevel = true;
    for (int i = 0; i < 4; ++i)
    {
        isLevel = isLevel && outline[i].z == elevation;
    }
    return isLevel && shorter > 0 && outline[2].distanceTo(outline[1] + up) <= tolerance &&
           std::fabs(along.x * up.x + along.y * up.y) <= tolerance * shorter;
}

double guardBand(const AcGePoint3d& corner, const AcGePoint3d& opposite)
{
    const double largest = (std::max)(largestCoordinate(corner), largestCoordinate(opposite));
    return (std::max)(1e-6 * corner.distanceTo(opposite),
                      4 * atLeastRounding(largestPointTolerance(), largest));
}
}  // namespace

LineSpan lineSpan(const AcGePoint3dArray& outline, const AcGePoint3d& P, int axis)
{
    LineSpan span = {-HUGE_VAL, -HUGE_VAL, HUGE_VAL, HUGE_VAL};
    if (!isRectangle(outline, P.z))
    {
        span.innerLow = HUGE_VAL;
        return span;
    }
    const AcGePoint3d& corner = outline[0];
    const double guard = guardBand(corner, outline[2]);
    AcGePoint3d start = P;
    start[axis] = corner[axis];
    // The depth below either pair of opposite edges grows evenly along the line. Where it does not
    // grow at all, the quotients are infinite. They are not numbers, and have no effect, only if
    // the line runs on a bound of the band itself; the band has room for either answer there.
    for (int i = 1; i < 4; i += 2)
    {
        const AcGeVector3d side = outline[i] - corner;
        const double length = side.length();
        const AcGeVector3d across = side / length;
        const double slope = axis == 0 ? across.x : across.y;
        const double fromCorner = (start - corner).dotProduct(across);
        const double depth = slope < 0 ? length - fromCorner : fromCorner;
        const auto where = [&](double depthThere)
        { return corner[axis] + (depthThere - depth) / std::fabs(slope); };
        span.outerLow = (std::max)(span.outerLow, where(-guard));
        span.innerLow = (std::max)(span.innerLow, where(guard));
        span.innerHigh = (std::min)(span.innerHigh, where(length - guard));
        span.outerHigh = (std::min)(span.outerHigh, where(length + guard));
    }
    return span;
}
