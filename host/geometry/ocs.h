// The coordinate system of an object's own plane (OCS), which the normal of the plane alone
// defines.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace host
{
// The axes follow from the normal by the arbitrary axis rule. The origin is that of the world. The
// normal may have any length. A zero-length or infinite normal counts as 0,0,1, so that a damaged
// file still has a plane.
//
// For the normal 0,0,1 every conversion returns its argument unchanged, to the last bit. Accessors
// return [borrowed] vectors that live as long as the Ocs.
class Ocs
{
public:
    explicit Ocs(const AcGeVector3d& normal);

    const AcGeVector3d& xAxis() const { return m_xAxis; }
    const AcGeVector3d& yAxis() const { return m_yAxis; }
    const AcGeVector3d& normal() const { return m_normal; }
    AcGeMatrix3d matrix() const;  // maps object coordinates to [wcs]

    // Convert object coordinates to [wcs] and the reverse.
    AcGeVector3d toWorld(const AcGeVector3d& v) const;
    AcGeVector3d toObject(const AcGeVector3d& v) const;
    AcGePoint3d toWorld(const AcGePoint3d& p) const;
    AcGePoint3d toObject(const AcGePoint3d& p) const;

    // Returns the angle of the direction [wcs] in the plane [rad]: counter-clockwise from the X
    // axis, greater than -pi and at most pi. The component along the normal is ignored; a direction
    // along the normal gives 0.
    double angleOf(const AcGeVector3d& directionWcs) const;
    // Returns the unit vector [wcs] at that angle [rad].
    AcGeVector3d directionWcs(double angle) const;

private:
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
}  // namespace host
