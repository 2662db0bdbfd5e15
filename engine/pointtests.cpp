#include "engine/pointtests.h"

#include <algorithm>
#include <cmath>

#include "output/tolerance.h"

static const double listTolerance = 1e-6;
static const double twoPi = 6.283185307179586;

static double largestOf(const AcGePoint3d& P, const AcGePoint3d* const (&corners)[4])
{
    double largest = largestCoordinate(P);
    for (int i = 0; i < 4; ++i)
    {
        largest = (std::max)(largest, largestCoordinate(*corners[i]));
    }
    return largest;
}

static bool isAtCorner(const AcGeVector3d (&toCorner)[4], double tolerance)
{
    for (int i = 0; i < 4; ++i)
    {
        if (toCorner[i].length() <= tolerance)
        {
            return true;
        }
    }
    return false;
}

static bool isOnEdge(const AcGePoint3d& P, const AcGePoint3d* const (&corners)[4], double tolerance)
{
    for (int i = 0; i < 4; ++i)
    {
        const AcGeLineSeg3d edge(*corners[i], *corners[(i + 1) % 4]);
        if (edge.distanceTo(P) <= tolerance)
        {
            return true;
        }
    }
    return false;
}

// Only from within do the four corners stand all round.
static bool isEncircled(const AcGeVector3d (&toCorner)[4])
{
    double sum = 0;
    for (int i = 0; i < 4; ++i)
    {
        sum += toCorner[i].angleTo(toCorner[(i + 1) % 4]);
    }
    return std::fabs(sum - twoPi) <= 1e-6;
}

int pointInQuad(const AcGePoint3d& P, const AcGePoint3d& Q0, const AcGePoint3d& Q1,
                const AcGePoint3d& Q2, const AcGePoint3d& Q3)
{
    const AcGePoint3d* const corners[4] = {&Q0, &Q1, &Q2, &Q3};
    const AcGeVector3d toCorner[4] = {Q0 - P, Q1 - P, Q2 - P, Q3 - P};
    const double largest = largestOf(P, corners);
    if (isAtCorner(toCorner, atLeastRounding(AcGeContext::gTol.equalVector(), largest)))
    {
        return 2;
    }
    if (isOnEdge(P, corners, atLeastRounding(AcGeContext::gTol.equalPoint(), largest)))
    {
        return 0;
    }
    return isEncircled(toCorner) ? 1 : -1;
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

double CurveArea::widestTolerance()
{
    return (std::max)(listTolerance, AcGeContext::gTol.equalPoint());
}

int CurveArea::locate(const AcGePoint3d& P) const
{
    const double largest = largestCoordinate(P);
    AcGePoint3d closest;
    if (m_curve.getClosestPointTo(P, closest) == Acad::eOk &&
        closest.distanceTo(P) <= atLeastRounding(AcGeContext::gTol.equalPoint(), largest))
    {
        return 0;
    }
    if (!m_isPolyline)
    {
        return -99;
    }
    AcGeIntArray loops;
    const double tolerance = atLeastRounding(listTolerance, largest);
    return m_polygon.isPointInsideMPolygon(P, loops, tolerance) < 1 ? -1 : 1;
}

int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve)
{
    return CurveArea(curve).locate(P);
}

bool containsPoint(const AcGePoint3dArray& list, const AcGePoint3d& P)
{
    const BorrowedTolerance tolerance(atLeastRounding(listTolerance, largestCoordinate(P)));
    for (int i = 0; i < list.length(); ++i)
    {
        if (list[i].distanceTo(P) < AcGeContext::gTol.equalPoint())
        {
            return true;
        }
    }
    return false;
}
