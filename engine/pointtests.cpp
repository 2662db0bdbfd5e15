#include "engine/pointtests.h"

#include <algorithm>
#include <cmath>

#include "output/tolerance.h"

namespace
{
const double listTolerance = 1e-6;
const double twoPi = 6.283185307179586;
}  // namespace

double largestPointTolerance()
{
    const double ofHost =
        (std::max)(AcGeContext::gTol.equalPoint(), AcGeContext::gTol.equalVector());
    return (std::max)(ofHost, listTolerance);
}

int pointInQuad(const AcGePoint3d& P, const AcGePoint3d& Q0, const AcGePoint3d& Q1,
                const AcGePoint3d& Q2, const AcGePoint3d& Q3)
{
    const AcGeVector3d toCorner[] = {Q0 - P, Q1 - P, Q2 - P, Q3 - P};
    const AcGeLineSeg3d edges[] = {AcGeLineSeg3d(Q0, Q1), AcGeLineSeg3d(Q1, Q2),
                                   AcGeLineSeg3d(Q2, Q3), AcGeLineSeg3d(Q3, Q0)};
    bool isOnEdge = false;
    double angleSum = 0;
    for (int i = 0; i < 4; ++i)
    {
        if (toCorner[i].length() <= AcGeContext::gTol.equalVector())
        {
            return 2;
        }
        isOnEdge = isOnEdge || edges[i].distanceTo(P) <= AcGeContext::gTol.equalPoint();
        angleSum += toCorner[i].angleTo(toCorner[(i + 1) % 4]);
    }
    if (isOnEdge)
    {
        return 0;
    }
    // The angle-sum test: the angles between the corners add up to a full turn only when they are
    // seen from a point inside.
    return std::fabs(angleSum - twoPi) <= 1e-6 ? 1 : -1;
}

int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points)
{
    if (points.length() < 4)
    {
        return -99;
    }
    return pointInQuad(P, points[0], points[1], points[2], points[3]);
}

CurveArea::CurveArea(const AcDbCurve& curve) : m_curve(curve), m_isPolyline(false)
{
    const AcDb2dPolyline* polyline = AcDb2dPolyline::cast(&curve);
    if (polyline != nullptr)
    {
        m_isPolyline = true;
        m_polygon.appendLoopFromBoundary(polyline, true, listTolerance);
    }
}

int CurveArea::locate(const AcGePoint3d& P) const
{
    AcGePoint3d closest;
    if (m_curve.getClosestPointTo(P, closest) == Acad::eOk &&
        closest.distanceTo(P) <= AcGeContext::gTol.equalPoint())
    {
        return 0;
    }
    if (!m_isPolyline)
    {
        return -99;
    }
    AcGeIntArray loops;
    return m_polygon.isPointInsideMPolygon(P, loops, listTolerance) < 1 ? -1 : 1;
}

int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve)
{
    return CurveArea(curve).locate(P);
}

namespace
{
// Returns the index of the coordinate that changes most along the direction.
int mainAxis(const AcGeVector3d& direction)
{
    const double x = std::fabs(direction.x);
    const double y = std::fabs(direction.y);
    const double z = std::fabs(direction.z);
    return x >= y && x >= z ? 0 : y >= z ? 1 : 2;
}
}  // namespace

KnownPoints::KnownPoints(const AcGeVector3d& direction) : m_axis(mainAxis(direction)) {}

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
bool KnownPoints::contain(const AcGePoint3d& P) const
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
