#include "output/entities.h"

#include <algorithm>

#include "output/frame.h"
#include "output/tolerance.h"

namespace
{
void setLook(AcDbEntity* entity, Adesk::UInt16 color, const ACHAR* layerName,
             const ACHAR* linetypeName)
{
    if (color != 0)
    {
        entity->setColorIndex(color, true);
    }
    if (makeLayerUsable(layerName, true))
    {
        entity->setLayer(layerName, true, false);
    }
    // The current linetype is never used, because a dashed grid could not be told from dashed
    // contours.
    entity->setLinetype(linetypeExists(linetypeName) ? linetypeName : L"Continuous", true);
}

bool coincide(const AcGePoint3d& p, const AcGePoint3d& q)
{
    const double largest = (std::max)(largestCoordinate(p), largestCoordinate(q));
    return p.distanceTo(q) < atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
}
}  // namespace

AcDbObjectId addPolylineFrame(bool pointsInUcs, AcGePoint3dArray points, Adesk::UInt16 color,
                              const ACHAR* layerName, const ACHAR* linetypeName,
                              const ACHAR* blockName)
{
    if (points.length() < 2)
    {
        return AcDbObjectId::kNull;
    }
    for (int i = 0; !pointsInUcs && i < points.length(); ++i)
    {
        points[i] = toUcs(points[i]);
    }
    const bool closed = coincide(points.first(), points.last());
    if (closed)
    {
        points.removeLast();
    }
    AcDb2dPolyline* frame =
        new AcDb2dPolyline(AcDb::k2dSimplePoly, points, 0.0, Adesk::kFalse, 0.0, 0.0);
    frame->setDatabaseDefaults();
    setLook(frame, color, layerName, linetypeName);
    if (closed)
    {
        frame->makeClosed();
    }
    frame->setLinetypeGenerationOn();
    frame->setLineWeight(AcDb::kLnWtByLayer, true);
    return showEntity(frame, blockName);
}

AcDbObjectId addLine(bool pointsInUcs, AcGePoint3d start, AcGePoint3d end, Adesk::UInt16 color,
                     const ACHAR* layerName, const ACHAR* linetypeName, const ACHAR* blockName)
{
    AcDbLine* line =
        pointsInUcs ? new AcDbLine(start, end) : new AcDbLine(toUcs(start), toUcs(end));
    line->setDatabaseDefaults();
    setLook(line, color, layerName, linetypeName);
    line->setLineWeight(AcDb::kLnWtByLayer, true);
    return showEntity(line, blockName);
}

AcDbObjectId addHiddenRectangle(const AcGePoint3d& corner1, const AcGePoint3d& corner2)
{
    AcGePoint3dArray corners;
    corners.append(corner1);
    corners.append(AcGePoint3d(corner2.x, corner1.y, 0));
    corners.append(corner2);
    corners.append(AcGePoint3d(corner1.x, corner2.y, 0));
    corners.append(corner1);
    AcDb2dPolyline* rectangle = new AcDb2dPolyline(AcDb::k2dSimplePoly, corners, 0.0, Adesk::kTrue);
    rectangle->setVisibility(AcDb::kInvisible, true);
    AcDbObjectId id;
    appendToBlock(rectangle, id, ACDB_MODEL_SPACE);
    return id;
}
