#include "gevec3d.h"

#include <numbers>

#include "host/geometry/ocs.h"

const AcGeVector3d AcGeVector3d::kIdentity;
const AcGeVector3d AcGeVector3d::kXAxis(1, 0, 0);
const AcGeVector3d AcGeVector3d::kYAxis(0, 1, 0);
const AcGeVector3d AcGeVector3d::kZAxis(0, 0, 1);

bool AcGeVector3d::isParallelTo(const AcGeVector3d& v, const AcGeTol& tol) const
{
    const double both = length() * v.length();
    return both > 0 && crossProduct(v).length() <= tol.equalVector() * both;
}

AcGeVector3d AcGeVector3d::perpVector() const
{
    return host::Ocs(*this).xAxis();
}

double AcGeVector3d::angleTo(const AcGeVector3d& v, const AcGeVector3d& ref) const
{
    const double angle = angleTo(v);
    return ref.dotProduct(crossProduct(v)) >= 0 ? angle : 2 * std::numbers::pi - angle;
}
