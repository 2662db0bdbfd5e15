#include "host/geometry/ocs.h"

#include <cfloat>
#include <cmath>

namespace host
{
namespace
{
// A sum that starts from zero has no negative zeros, which would be written to files as "-0.0".
AcGeVector3d withoutNegativeZero(const AcGeVector3d& v)
{
    return AcGeVector3d() + v;
}

// A normal of any length defines a plane, so neither the shared tolerance nor the range of squares
// may limit it. A vector whose length is 1 apart from rounding stays unchanged: another division
// could move a component across the limit of the rule and give a stored object other axes.
AcGeVector3d unitNormal(const AcGeVector3d& normal)
{
    const double size = std::hypot(normal.x, normal.y, normal.z);
    if (!(size > 0 && size <= DBL_MAX))
    {
        return AcGeVector3d::kZAxis;
    }
    const bool isUnit = std::abs(size - 1) <= DBL_EPSILON;
    return withoutNegativeZero(isUnit ? normal : normal / size);
}

// The limit is a power of two, so that every system decides in the same way.
bool isNearWorldZ(const AcGeVector3d& unit)
{
    const double limit = 1.0 / 64.0;
    return std::abs(unit.x) < limit && std::abs(unit.y) < limit;
}
}  // namespace

Ocs::Ocs(const AcGeVector3d& normal) : m_normal(unitNormal(normal))
{
    const AcGeVector3d& helper =
        isNearWorldZ(m_normal) ? AcGeVector3d::kYAxis : AcGeVector3d::kZAxis;
    const AcGeVector3d across = helper.crossProduct(m_normal);
    m_xAxis = withoutNegativeZero(across / across.length());
    const AcGeVector3d up = m_normal.crossProduct(m_xAxis);
    m_yAxis = withoutNegativeZero(up / up.length());
}

AcGeMatrix3d Ocs::matrix() const
{
    return AcGeMatrix3d().setCoordSystem(AcGePoint3d(), m_xAxis, m_yAxis, m_normal);
}

AcGeVector3d Ocs::toWorld(const AcGeVector3d& v) const
{
    return m_xAxis * v.x + m_yAxis * v.y + m_normal * v.z;
}

AcGeVector3d Ocs::toObject(const AcGeVector3d& v) const
{
    return {m_xAxis.dotProduct(v), m_yAxis.dotProduct(v), m_normal.dotProduct(v)};
}

AcGePoint3d Ocs::toWorld(const AcGePoint3d& p) const
{
    return AcGePoint3d() + toWorld(p.asVector());
}

AcGePoint3d Ocs::toObject(const AcGePoint3d& p) const
{
    return AcGePoint3d() + toObject(p.asVector());
}

double Ocs::angleOf(const AcGeVector3d& directionWcs) const
{
    const AcGePoint3d inPlane = AcGePoint3d() + toObject(directionWcs);
    return std::atan2(inPlane.y, inPlane.x);
}

AcGeVector3d Ocs::directionWcs(double angle) const
{
    return m_xAxis * std::cos(angle) + m_yAxis * std::sin(angle);
}
}  // namespace host
