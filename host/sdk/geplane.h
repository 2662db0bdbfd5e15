// A plane with an origin and axes of its own.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// A plane in the coordinate system of the constructor's arguments. Its axes always have unit length
// and are perpendicular to each other. When only the normal is given, the axes follow from it by
// the arbitrary axis rule.
class AcGePlane
{
public:
    // Create the XY plane, or the plane through origin with the given normal, which may have any
    // length.
    constexpr AcGePlane() : m_xAxis(1, 0, 0), m_yAxis(0, 1, 0), m_normal(0, 0, 1) {}
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal);
    // Creates the plane a x + b y + c z + d = 0, where a, b and c are not all zero. Its origin is
    // the point nearest to 0,0,0.
    AcGePlane(double a, double b, double c, double d);
    // Creates the plane through origin whose X axis has the direction of uVec. vVec tells on which
    // side of it the Y axis lies. The two vectors must not be parallel.
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uVec, const AcGeVector3d& vVec);

    static const AcGePlane kXYPlane;  // z = 0, with the axes X and Y

    // Return the origin and the unit normal; getCoordSystem returns the origin with the X and Y
    // axes.
    AcGePoint3d pointOnPlane() const { return m_origin; }
    AcGeVector3d normal() const { return m_normal; }
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const;

private:
    AcGePoint3d m_origin;
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
