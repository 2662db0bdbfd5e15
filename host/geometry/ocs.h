// The coordinate system of an object's own plane (OCS). The normal of the plane alone defines it.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// The axes follow from the normal by the arbitrary axis rule, and the origin is that of the world.
// The normal may have any length. A zero-length or infinite one stands for 0,0,1, so that a damaged
// file still has a plane.
//
// For the normal 0,0,1 every conversion leaves its argument as it is, to the last bit.
class Ocs
{
public:
    explicit Ocs(const AcGeVector3d& normal);

    const AcGeVector3d& xAxis() const { return m_xAxis; }
    const AcGeVector3d& yAxis() const { return m_yAxis; }
    const AcGeVector3d& normal() const { return m_normal; }
    AcGeMatrix3d matrix() const;  // maps object coordinates to [wcs]

    // Conversions from object coordinates to [wcs] and back.
    AcGeVector3d toWorld(const AcGeVector3d& v) const;
    AcGeVector3d toObject(const AcGeVector3d& v) const;
    AcGePoint3d toWorld(const AcGePoint3d& p) const;
    AcGePoint3d toObject(const AcGePoint3d& p) const;

    // Angle of the direction [wcs] in the plane [rad]: counter-clockwise from the X axis, above -pi
    // and at most pi. The part along the normal does not count; a direction along the normal gives
    // 0.
    double angleOf(const AcGeVector3d& directionWcs) const;
    // Unit vector [wcs] of that angle [rad].
    AcGeVector3d directionWcs(double angle) const;

private:
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
}  // namespace host
