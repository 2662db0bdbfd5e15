// A plane with an origin and axes of its own.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// The axes are of unit length and square to each other whatever the arguments were. Where only
// the normal is given they follow from it by the arbitrary axis rule.
class AcGePlane
{
public:
    constexpr AcGePlane() : m_xAxis(1, 0, 0), m_yAxis(0, 1, 0), m_normal(0, 0, 1) {}
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& normal);
    // a x + b y + c z + d = 0, with a,b,c not all zero; the origin is the point nearest to 0,0,0.
    AcGePlane(double a, double b, double c, double d);
    // uVec gives the X axis, vVec the side on which the Y axis lies.
    AcGePlane(const AcGePoint3d& origin, const AcGeVector3d& uVec, const AcGeVector3d& vVec);

    static const AcGePlane kXYPlane;

    AcGePoint3d pointOnPlane() const { return m_origin; }
    AcGeVector3d normal() const { return m_normal; }
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis) const;

private:
    AcGePoint3d m_origin;
    AcGeVector3d m_xAxis;
    AcGeVector3d m_yAxis;
    AcGeVector3d m_normal;
};
