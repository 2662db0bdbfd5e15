#include <algorithm>
#include <limits>
#include <memory>

#include "dbents.h"
#include "host/database/core.h"
#include "host/database/entitystyle.h"
#include "host/database/fitness.h"
#include "host/database/intersections.h"
#include "host/database/polylinevertices.h"

ACRX_DEFINE_MEMBERS(AcDb2dVertex, AcDbEntity)
ACRX_DEFINE_MEMBERS(AcDb2dPolyline, AcDbCurve)

Acad::ErrorStatus AcDb2dVertex::transformBy(const AcGeMatrix3d&)
{
    // A vertex lies in the plane of its polyline and moves with the polyline.
    return Acad::eNotApplicable;
}

AcDb2dPolyline::AcDb2dPolyline() : m_internals(new Internals()) {}

AcDb2dPolyline::AcDb2dPolyline(AcDb::Poly2dType type, AcGePoint3dArray& vertices, double elevation,
                               Adesk::Boolean closed, double defStartWidth, double defEndWidth,
                               AcGeDoubleArray* bulges, AcArray<Adesk::Int32>*)
    : AcDb2dPolyline()
{
    m_elevation = elevation;
    m_startWidth = defStartWidth;
    m_endWidth = defEndWidth;
    m_closed = closed != Adesk::kFalse;
    if (type != AcDb::k2dSimplePoly || bulges != nullptr)
    {
        return;
    }
    for (int i = 0; i < vertices.length(); ++i)
    {
        m_internals->add(AcGePoint3d(vertices[i].x, vertices[i].y, elevation));
    }
}

AcDb2dPolyline::~AcDb2dPolyline()
{
    // In a database the vertices are separate objects.
    if (objectId().isNull())
    {
        m_internals->deleteVertices();
    }
    delete m_internals;
}

void AcDb2dPolyline::subentSetProperties()
{
    host::LineStyle style = host::EntityStyle::styleOf(*this);
    style.reactors = 0;
    for (AcDb2dVertex* vertex : m_internals->vertices())
    {
        host::EntityStyle::setStyle(*vertex, style);
    }
}

Acad::ErrorStatus AcDb2dPolyline::makeClosed()
{
    assertWriteEnabled("AcDb2dPolyline::makeClosed");
    m_closed = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::makeOpen()
{
    assertWriteEnabled("AcDb2dPolyline::makeOpen");
    m_closed = false;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::setLinetypeGenerationOn()
{
    assertWriteEnabled("AcDb2dPolyline::setLinetypeGenerationOn");
    m_linetypeGeneration = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::setLinetypeGenerationOff()
{
    assertWriteEnabled("AcDb2dPolyline::setLinetypeGenerationOff");
    m_linetypeGeneration = false;
    return Acad::eOk;
}

AcDbObjectIterator* AcDb2dPolyline::vertexIterator() const
{
    assertReadEnabled("AcDb2dPolyline::vertexIterator");
    auto iterator = std::make_unique<AcDbObjectIterator>();
    for (const AcDb2dVertex* vertex : m_internals->vertices())
    {
        if (!vertex->objectId().isNull())
        {
            iterator->m_ids.append(vertex->objectId());
        }
    }
    return iterator.release();
}

namespace
{
// Passes a property that has just been set on to the vertices.
template <class Setter>
Acad::ErrorStatus withSubents(Acad::ErrorStatus status, Adesk::Boolean doSubents, Setter setter)
{
    if (status == Acad::eOk && doSubents)
    {
        setter();
    }
    return status;
}
}  // namespace

Acad::ErrorStatus AcDb2dPolyline::setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents)
{
    return withSubents(AcDbEntity::setColorIndex(color, doSubents), doSubents,
                       [this] { subentSetProperties(); });
}

Acad::ErrorStatus AcDb2dPolyline::setLayer(AcDbObjectId id, Adesk::Boolean doSubents,
                                           bool allowHiddenLayer)
{
    return withSubents(AcDbEntity::setLayer(id, doSubents, allowHiddenLayer), doSubents,
                       [this] { subentSetProperties(); });
}

Acad::ErrorStatus AcDb2dPolyline::setLinetype(AcDbObjectId id, Adesk::Boolean doSubents)
{
    return withSubents(AcDbEntity::setLinetype(id, doSubents), doSubents,
                       [this] { subentSetProperties(); });
}

Acad::ErrorStatus AcDb2dPolyline::setLineWeight(AcDb::LineWeight weight, Adesk::Boolean doSubents)
{
    return withSubents(AcDbEntity::setLineWeight(weight, doSubents), doSubents,
                       [this] { subentSetProperties(); });
}

Acad::ErrorStatus AcDb2dPolyline::setVisibility(AcDb::Visibility visibility,
                                                Adesk::Boolean doSubents)
{
    return withSubents(AcDbEntity::setVisibility(visibility, doSubents), doSubents,
                       [this] { subentSetProperties(); });
}

Acad::ErrorStatus AcDb2dPolyline::erase(Adesk::Boolean erasing)
{
    const Acad::ErrorStatus status = AcDbCurve::erase(erasing);
    if (status != Acad::eOk)
    {
        return status;
    }
    const auto eraseToo = [erasing](AcDbStub* stub)
    { host::coreOf(stub).undoLog().erase(stub, erasing != Adesk::kFalse); };
    for (const AcDb2dVertex* vertex : m_internals->vertices())
    {
        eraseToo(vertex->objectId().stub());
    }
    eraseToo(m_internals->sequenceEnd);
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::transformBy(const AcGeMatrix3d& matrix)
{
    assertWriteEnabled("AcDb2dPolyline::transformBy");
    if (!host::keepsAngles(matrix))
    {
        return Acad::eCannotScaleNonUniformly;
    }
    // The points are moved in world coordinates. A trip through the plane's coordinate system would
    // add rounding errors far from the origin.
    std::vector<AcGePoint3d> moved = m_internals->points();
    for (AcGePoint3d& point : moved)
    {
        point.transformBy(matrix);
    }
    const AcGeVector3d up = (matrix * normal()).normal();
    const auto isFit = [&](const AcGePoint3d& point) { return host::isFitInPlane(point, up); };
    if (host::isInDrawing(*this) && !std::ranges::all_of(moved, isFit))
    {
        return Acad::eInvalidInput;
    }
    setNormal(up);
    m_elevation = m_internals->moveTo(std::move(moved), up, m_elevation);
    subentSetProperties();
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::getStretchPoints(AcGePoint3dArray& points) const
{
    assertReadEnabled("AcDb2dPolyline::getStretchPoints");
    for (const AcGePoint3d& point : m_internals->points())
    {
        points.append(point);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDb2dPolyline::getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                                    Adesk::Boolean extend) const
{
    assertReadEnabled("AcDb2dPolyline::getClosestPointTo");
    if (extend)
    {
        return Acad::eNotImplementedYet;
    }
    const std::vector<AcGePoint3d>& points = m_internals->points();
    const std::size_t corners = points.size();
    if (corners < 2)
    {
        return Acad::eInvalidInput;
    }
    double best = std::numeric_limits<double>::infinity();
    const std::size_t segments = m_closed ? corners : corners - 1;
    for (std::size_t i = 0; i < segments; ++i)
    {
        const AcGePoint3d near =
            host::closestOnSegment(points[i], points[(i + 1) % corners], given);
        const double distance = near.distanceTo(given);
        if (distance < best)
        {
            best = distance;
            onCurve = near;
        }
    }
    return Acad::eOk;
}
