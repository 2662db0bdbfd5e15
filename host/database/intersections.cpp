#include "host/database/intersections.h"

#include <cmath>

#include "gelnsg3d.h"
#include "host/database/polylinevertices.h"
#include "host/geometry/intersect.h"

namespace host
{
bool keepsAngles(const AcGeMatrix3d& matrix)
{
    const AcGeVector3d x = matrix * AcGeVector3d(1, 0, 0);
    const AcGeVector3d y = matrix * AcGeVector3d(0, 1, 0);
    const AcGeVector3d z = matrix * AcGeVector3d(0, 0, 1);
    const double scale = x.length();
    const double off[] = {y.length() - scale, z.length() - scale, x.dotProduct(y) / scale,
                          y.dotProduct(z) / scale, z.dotProduct(x) / scale};
    bool keeps = scale > 0;
    for (double deviation : off)
    {
        keeps = keeps && std::fabs(deviation) <= 1e-6 * scale;
    }
    return keeps;
}

namespace
{
void meet(const StraightPiece& asking, const AcGePoint3d& start, const AcGePoint3d& end,
          bool extended, std::vector<Crossing>& found)
{
    if (const auto at = crossing(asking, {start, end, extended}))
    {
        found.push_back(*at);
    }
}

void meetPolyline(const StraightPiece& asking, const AcDb2dPolyline& polyline,
                  std::vector<Crossing>& found)
{
    const std::vector<AcGePoint3d>& corners = cornersOf(polyline);
    const std::size_t count = corners.size();
    const std::size_t segments = polyline.isClosed() || count == 0 ? count : count - 1;
    for (std::size_t i = 0; i < segments; ++i)
    {
        meet(asking, corners[i], corners[(i + 1) % count], false, found);
    }
}
}  // namespace

Acad::ErrorStatus intersectLine(const AcDbLine& line, const AcDbEntity& other, AcDb::Intersect type,
                                AcGePoint3dArray& points)
{
    const bool extendThis = type == AcDb::kExtendThis || type == AcDb::kExtendBoth;
    const bool extendOther = type == AcDb::kExtendArg || type == AcDb::kExtendBoth;
    const StraightPiece asking{line.startPoint(), line.endPoint(), extendThis};
    std::vector<Crossing> found;
    found.reserve(4);
    if (const AcDb2dPolyline* polyline = AcDb2dPolyline::cast(&other))
    {
        meetPolyline(asking, *polyline, found);
    }
    else if (const AcDbLine* second = AcDbLine::cast(&other))
    {
        meet(asking, second->startPoint(), second->endPoint(), extendOther, found);
    }
    else
    {
        return Acad::eNotImplementedYet;
    }
    arrangeFarEndFirst(found);
    for (const Crossing& at : found)
    {
        points.append(at.point);
    }
    return Acad::eOk;
}

AcGePoint3d closestOnSegment(const AcGePoint3d& a, const AcGePoint3d& b, const AcGePoint3d& p)
{
    return AcGeLineSeg3d(a, b).closestPointTo(p);
}
}  // namespace host
