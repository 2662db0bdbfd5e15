// The coordinate system of an object's own plane, from the plane's normal alone.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// Axes by the arbitrary axis rule, through the world origin; any normal, which is brought to unit
// length. A zero-length or infinite one stands for 0,0,1, so that a damaged file still has a plane.
//
// For the normal 0,0,1 every conversion leaves its argument as it is, to the last bit.
class Ocs
{
public:
    explicit Ocs(const AcGeVector3d& normal);

    const AcGeVector3d& xAxis() const { return m_xAxis; }
    const AcGeVector3d& yAxis() const { return m_yAxis; }
    const AcGeVector3d& normal() const { return m_normal; }
    AcGeMatrix3d matrix() const;  // carries object coordinates to world ones

    AcGeVector3d toWorld(const AcGeVector3d& v) const;
    AcGeVector3d toObject(const AcGeVector3d& v) const;
    AcGePoint3d toWorld(const AcGePoint3d& p) const;
    AcGePoint3d toObject(const AcGePoint3d& p) const;

    // Radians from the X axis, counter-clockwise about the normal; the angle of what v shows in
    // the plane, (-pi, pi], 0 for a v along the normal.
    double angleOf(const AcGeVector3d& directionWcs) const;
    AcGeVector3d directionWcs(double angle) const;  // unit length

private:
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
}  // namespace host
