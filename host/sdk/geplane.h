// A plane with an origin and axes of its own.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// A plane, in the system that it is made in. Its axes are of unit length and square to each other
// whatever the arguments were. When only the normal is given, the axes follow from it by the
// arbitrary axis rule.
class AcGePlane
{
public:
    // The XY plane; the plane through origin with that normal, which may have any length.
    constexpr AcGePlane() : m_xAxis(1, 0, 0), m_yAxis(0, 1, 0), m_normal(0, 0, 1) {}
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal);
    // The plane a x + b y + c z + d = 0, with a, b and c not all zero. Its origin is the point
    // nearest to 0,0,0.
    AcGePlane(double a, double b, double c, double d);
    // uVec gives the X axis, vVec the side on which the Y axis lies. The two are not parallel.
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uVec, const AcGeVector3d& vVec);

    static const AcGePlane kXYPlane;  // z = 0, its axes X and Y

    // The origin, the unit normal, and both with the axes.
    AcGePoint3d pointOnPlane() const { return m_origin; }
    AcGeVector3d normal() const { return m_normal; }
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const;

private:
    AcGePoint3d m_origin;
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
