#include "engine/pointtests.h"

#include "output/tolerance.h"

namespace
{
const double listTolerance = 1e-6;
const double twoPi = 6.283185307179586;

bool isRectangle(const AcGePoint3dArray& outline, double z)
{
    if (outline.length() < 4 || outline[0].z != z || outline[1].z != z || outline[2].z != z ||
        outline[3].z != z)
    {
        return false;
    }
    const double tolerance = AcGeContext::gTol.equalPoint();
    const AcGeVector3d along = outline[1] - outline[0];
    const AcGeVector3d up = outline[3] - outline[0];
    const double shorter = (std::min)(along.length(), up.length());
    return shorter > 0 && outline[2].distanceTo(outline[1] + up) <= tolerance &&
           std::fabs(along.dotProduct(up)) <= tolerance * shorter;
}

double guardBand(const AcGePoint3d& corner, const AcGePoint3d& opposite)
{
    const double ofHost =
        (std::max)(AcGeContext::gTol.equalPoint(), AcGeContext::gTol.equalVector());
    const double largest = (std::max)(largestCoordinate(corner), largestCoordinate(opposite));
    return 4 * atLeastRounding((std::max)(ofHost, listTolerance), largest);
}
}  // namespace

int pointInQuad(const AcGePoint3d& P, const AcGePoint3d& Q0, const AcGePoint3d& Q1,
                const AcGePoint3d& Q2, const AcGePoint3d& Q3)
{
    const AcGePoint3d corners[] = {Q0, Q1, Q2, Q3, Q0};
    bool isOnEdge = false;
    double angleSum = 0;
    for (int i = 0; i < 4; ++i)
    {
        const AcGeVector3d toCorner = corners[i] - P;
        if (toCorner.length() <= AcGeContext::gTol.equalVector())
        {
            return 2;
        }
        const AcGeLineSeg3d edge(corners[i], corners[i + 1]);
        isOnEdge = isOnEdge || edge.distanceTo(P) <= AcGeContext::gTol.equalPoint();
        angleSum += toCorner.angleTo(corners[i + 1] - P);
    }
    // The angle-sum test: the angles between the corners add up to a full turn only when they are
    // seen from a point inside.
    const bool isInside = std::fabs(angleSum - twoPi) <= 1e-6;
    return isOnEdge ? 0 : isInside ? 1 : -1;
}

int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points)
{
    return points.length() < 4 ? -99 : pointInQuad(P, points[0], points[1], points[2], points[3]);
}

int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve, const AcDbMPolygon& area)
{
    AcGePoint3d closest;
    if (curve.getClosestPointTo(P, closest) == Acad::eOk &&
        closest.distanceTo(P) <= AcGeContext::gTol.equalPoint())
    {
        return 0;
    }
    AcGeIntArray loops;
    const bool isInside = area.isPointInsideMPolygon(P, loops, listTolerance) >= 1;
    return AcDb2dPolyline::cast(&curve) == nullptr ? -99 : isInside ? 1 : -1;
}

void areaWithin(const AcDbCurve* curve, AcDbMPolygon& area)
{
    area.appendLoopFromBoundary(AcDb2dPolyline::cast(curve), true, listTolerance);
}

LineSpan lineSpan(const AcGePoint3dArray& outline, const AcGePoint3d& P, int axis)
{
    const bool isKnown = isRectangle(outline, P.z);
    LineSpan span = {axis, -HUGE_VAL, isKnown ? -HUGE_VAL : HUGE_VAL, HUGE_VAL, HUGE_VAL};
    // The depth below either pair of opposite edges grows evenly along the line. Where it does not
    // grow at all, the quotients are infinite. They are not numbers, and have no effect, only if
    // the line runs on a bound of the band itself; the band has room for either answer there.
    for (int i = 1; isKnown && i < 4; i += 2)
    {
        const AcGePoint3d& corner = outline[0];
        const double inside = guardBand(corner, outline[2]);
        const double outside = (std::max)(inside, 2.5e-7 * corner.distanceTo(outline[2]));
        AcGePoint3d start = P;
        start[axis] = corner[axis];
        const double length = (outline[i] - corner).length();
        const AcGeVector3d across = (outline[i] - corner) / length;
        const double slope = axis == 0 ? across.x : across.y;
        const double fromCorner = (start - corner).dotProduct(across);
        const double depth = slope < 0 ? length - fromCorner : fromCorner;
        const auto where = [&](double depthThere)
        { return corner[axis] + (depthThere - depth) / std::fabs(slope); };
        span.outerLow = (std::max)(span.outerLow, where(-outside));
        span.innerLow = (std::max)(span.innerLow, where(inside));
        span.innerHigh = (std::min)(span.innerHigh, where(length - inside));
        span.outerHigh = (std::min)(span.outerHigh, where(length + outside));
    }
    return span;
}

KnownPoints::KnownPoints(const AcGeVector3d& direction)
{
    const double x = std::fabs(direction.x);
    const double y = std::fabs(direction.y);
    const double z = std::fabs(direction.z);
    m_axis = x >= y && x >= z ? 0 : y >= z ? 1 : 2;
}

void KnownPoints::add(const AcGePoint3d& P)
{
    const double at = P[m_axis];
    // NaN has no place in the order, and no point lies near it.
    if (at == at)
    {
        m_points.insert(std::make_pair(at, P));
    }
}

// No coordinate differs by more than the distance. Twice the distance leaves room for rounding.
bool KnownPoints::containsPoint(const AcGePoint3d& P) const
{
    const double distance = atLeastRounding(listTolerance, largestCoordinate(P));
    const double last = P[m_axis] + 2 * distance;
    auto known = m_points.lower_bound(P[m_axis] - 2 * distance);
    for (; known != m_points.end() && known->first <= last; ++known)
    {
        if (known->second.distanceTo(P) < distance)
        {
            return true;
        }
    }
    return false;
}
