#include <cmath>
#include <cstring>

#include "host/database/intersections.h"
#include "dbents.h"

ACRX_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)
ACRX_DEFINE_MEMBERS(AcDbLine, AcDbCurve)

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbLine::setStartPoint");
    m_start = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbLine::setEndPoint");
    m_end = point;
    return Acad::eOk;
}

namespace
{
bool isIdentity(const AcGeMatrix3d& matrix)
{
    return std::memcmp(matrix.entry, AcGeMatrix3d::kIdentity.entry, sizeof matrix.entry) == 0;
}

bool isFinite(const AcGePoint3d& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}
}  // namespace

Acad::ErrorStatus AcDbLine::transformBy(const AcGeMatrix3d& matrix)
{
    assertWriteEnabled("AcDbLine::transformBy");
    if (isIdentity(matrix) && isFinite(m_start) && isFinite(m_end))
    {
        // What the product would give: no negative zero.
        m_start += AcGeVector3d();
        m_end += AcGeVector3d();
        return Acad::eOk;
    }
    if (!host::keepsAngles(matrix))
    {
        return Acad::eCannotScaleNonUniformly;
    }
    m_start.transformBy(matrix);
    m_end.transformBy(matrix);
    setNormal((matrix * normal()).normal());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::getStretchPoints(AcGePoint3dArray& points) const
{
    assertReadEnabled("AcDbLine::getStretchPoints");
    points.append(m_start);
    points.append(m_end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::intersectWith(const AcDbEntity* other, AcDb::Intersect type,
                                          AcGePoint3dArray& points, Adesk::GsMarker,
                                          Adesk::GsMarker) const
{
    assertReadEnabled("AcDbLine::intersectWith");
    if (other == nullptr)
    {
        return Acad::eNullObjectPointer;
    }
    return host::intersectLine(*this, *other, type, points);
}

Acad::ErrorStatus AcDbLine::getClosestPointTo(const AcGePoint3d& given, AcGePoint3d& onCurve,
                                              Adesk::Boolean extend) const
{
    assertReadEnabled("AcDbLine::getClosestPointTo");
    if (extend)
    {
        return Acad::eNotImplementedYet;
    }
    onCurve = host::closestOnSegment(m_start, m_end, given);
    return Acad::eOk;
}
