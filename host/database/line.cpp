#include <cstring>

#include "host/database/fitness.h"
#include "host/database/intersections.h"
#include "host/geometry/finite.h"

ACRX_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)
ACRX_DEFINE_MEMBERS(AcDbLine, AcDbCurve)

Acad::ErrorStatus AcDbLine::setStartPoint(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbLine::setStartPoint");
    if (host::isInDrawing(*this) && !host::isFinite(point))
    {
        return Acad::eInvalidInput;
    }
    m_start = point;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbLine::setEndPoint(const AcGePoint3d& point)
{
    assertWriteEnabled("AcDbLine::setEndPoint");
    if (host::isInDrawing(*this) && !host::isFinite(point))
    {
        return Acad::eInvalidInput;
    }
    m_end = point;
    return Acad::eOk;
}

namespace
{
bool isIdentity(const AcGeMatrix3d& matrix)
{
    return std::memcmp(matrix.entry, AcGeMatrix3d::kIdentity.entry, sizeof matrix.entry) == 0;
}
}  // namespace

Acad::ErrorStatus AcDbLine::transformBy(const AcGeMatrix3d& matrix)
{
    assertWriteEnabled("AcDbLine::transformBy");
    if (isIdentity(matrix) && host::isFinite(m_start) && host::isFinite(m_end))
    {
        // The product would never give a negative zero, so the sum removes one, too.
        m_start += AcGeVector3d();
        m_end += AcGeVector3d();
        return Acad::eOk;
    }
    if (!host::keepsAngles(matrix))
    {
        return Acad::eCannotScaleNonUniformly;
    }
    const AcGePoint3d start = matrix * m_start;
    const AcGePoint3d end = matrix * m_end;
    const AcGeVector3d moved = (matrix * normal()).normal();
    if (host::isInDrawing(*this) &&
        !(host::isFinite(start) && host::isFinite(end) && host::isFinite(moved)))
    {
        return Acad::eInvalidInput;
    }
    m_start = start;
    m_end = end;
    setNormal(moved);
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
