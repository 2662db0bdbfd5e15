#include "host/database/fitness.h"

#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
#include "host/database/polylinevertices.h"
#include "host/geometry/finite.h"
#include "host/geometry/ocs.h"

namespace host
{
namespace
{
bool isFitLine(const AcDbLine& line)
{
    return isFinite(line.startPoint()) && isFinite(line.endPoint());
}

bool isFitText(const AcDbText& text)
{
    return isFitInPlane(text.position(), text.normal()) &&
           isFitInPlane(text.alignmentPoint(), text.normal()) && std::isfinite(text.height()) &&
           std::isfinite(text.widthFactor()) && isAngle(text.rotation()) && isAngle(text.oblique());
}

bool isFitPolyline(const AcDb2dPolyline& polyline)
{
    return std::isfinite(polyline.elevation()) && std::isfinite(polyline.defStartWidth()) &&
           std::isfinite(polyline.defEndWidth()) &&
           std::ranges::all_of(PolylineVertices::of(polyline).vertices(),
                               [](const AcDb2dVertex* vertex)
                               { return isFinite(vertex->position()); });
}
}  // namespace

bool isAngle(double radians)
{
    return std::isfinite(toDegrees(radians));
}

bool isFitInPlane(const AcGePoint3d& point, const AcGeVector3d& normal)
{
    return isFinite(normal) && isFinite(point) && isFinite(Ocs(normal).toObject(point));
}

bool isFit(const AcDbEntity& entity)
{
    if (!isFinite(entity.normal()) || !std::isfinite(entity.linetypeScale()))
    {
        return false;
    }
    if (const AcDbLine* line = AcDbLine::cast(&entity))
    {
        return isFitLine(*line);
    }
    if (const AcDbText* text = AcDbText::cast(&entity))
    {
        return isFitText(*text);
    }
    const AcDb2dPolyline* polyline = AcDb2dPolyline::cast(&entity);
    return polyline == nullptr || isFitPolyline(*polyline);
}
}  // namespace host
