#include "tests/relations/plainpoints.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "output/tolerance.h"

namespace relations::plain
{
namespace
{
const double listTolerance = 1e-6;

int pointInQuad(const AcGePoint3d& P, const AcGePoint3d (&Q)[4])
{
    double largest = largestCoordinate(P);
    for (const AcGePoint3d& corner : Q)
    {
        largest = std::max(largest, largestCoordinate(corner));
    }
    const double atCorner = atLeastRounding(AcGeContext::gTol.equalVector(), largest);
    const double onEdge = atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
    const AcGeVector3d D[] = {Q[0] - P, Q[1] - P, Q[2] - P, Q[3] - P};
    const auto isAtP = [&](const AcGeVector3d& toCorner) { return toCorner.length() <= atCorner; };
    if (std::ranges::any_of(D, isAtP))
    {
        return 2;
    }
    const AcGeLineSeg3d edges[] = {{Q[0], Q[1]}, {Q[1], Q[2]}, {Q[2], Q[3]}, {Q[3], Q[0]}};
    const auto meetsP = [&](const AcGeLineSeg3d& edge) { return edge.distanceTo(P) <= onEdge; };
    if (std::ranges::any_of(edges, meetsP))
    {
        return 0;
    }
    const double sum =
        D[0].angleTo(D[1]) + D[1].angleTo(D[2]) + D[2].angleTo(D[3]) + D[3].angleTo(D[0]);
    return std::abs(sum - 2 * std::numbers::pi) <= 1e-6 ? 1 : -1;
}
}  // namespace

int pointInOutlinePoints(const AcGePoint3d& P, const AcGePoint3dArray& points)
{
    if (points.length() < 4)
    {
        return -99;
    }
    return pointInQuad(P, {points[0], points[1], points[2], points[3]});
}

int pointInCurve(const AcGePoint3d& P, const AcDbCurve& curve)
{
    const double largest = largestCoordinate(P);
    AcGePoint3d closest;
    if (curve.getClosestPointTo(P, closest) == Acad::eOk &&
        closest.distanceTo(P) <= atLeastRounding(AcGeContext::gTol.equalPoint(), largest))
    {
        return 0;
    }
    const AcDb2dPolyline* const polyline = AcDb2dPolyline::cast(&curve);
    if (polyline == nullptr)
    {
        return -99;
    }
    AcDbMPolygon polygon;
    polygon.appendLoopFromBoundary(polyline, true, listTolerance);
    AcGeIntArray loops;
    const double tolerance = atLeastRounding(listTolerance, largest);
    return polygon.isPointInsideMPolygon(P, loops, tolerance) < 1 ? -1 : 1;
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
}  // namespace relations::plain
