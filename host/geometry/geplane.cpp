#include "geplane.h"

#include "host/geometry/ocs.h"

const AcGePlane AcGePlane::kXYPlane;

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal) : m_origin(origin)
{
    const host::Ocs axes(normal);
    m_xAxis = axes.xAxis();
    m_yAxis = axes.yAxis();
    m_normal = axes.normal();
}

AcGePlane::AcGePlane(double a, double b, double c, double d)
    : AcGePlane(AcGePoint3d(), AcGeVector3d(a, b, c))
{
    m_origin += m_normal * (-d / AcGeVector3d(a, b, c).length());
}

AcGePlane::AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uVec, const AcGeVector3d& vVec)
    : m_origin(origin), m_xAxis(uVec.normal()), m_normal(uVec.crossProduct(vVec).normal())
{
    m_yAxis = m_normal.crossProduct(m_xAxis);
}

void AcGePlane::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const
{
    origin = m_origin;
    xAxis = m_xAxis;
    yAxis = m_yAxis;
}
