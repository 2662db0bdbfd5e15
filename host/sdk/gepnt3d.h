// A position in space.
#pragma once

#include "gevec3d.h"

class AcGeMatrix3d;

// Three coordinates in drawing units. The call that takes or returns a point names its coordinate
// system.
class AcGePoint3d
{
public:
    // Create the point 0,0,0 or one with the given coordinates.
    constexpr AcGePoint3d() : x(0), y(0), z(0) {}
    constexpr AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGePoint3d kOrigin;  // 0,0,0

    // Return a coordinate: index 0 is x, 1 is y, and any other index is z.
    double& operator[](unsigned index) { return index == 0 ? x : index == 1 ? y : z; }
    double operator[](unsigned index) const { return index == 0 ? x : index == 1 ? y : z; }

    // Add or subtract. A point and a vector give a point; two points give the vector from the
    // second to the first.
    AcGePoint3d operator+(const AcGeVector3d& v) const
    {
        return AcGePoint3d(x + v.x, y + v.y, z + v.z);
    }
    AcGePoint3d operator-(const AcGeVector3d& v) const
    {
        return AcGePoint3d(x - v.x, y - v.y, z - v.z);
    }
    AcGeVector3d operator-(const AcGePoint3d& p) const
    {
        return AcGeVector3d(x - p.x, y - p.y, z - p.z);
    }
    AcGePoint3d& operator+=(const AcGeVector3d& v) { return *this = *this + v; }
    AcGePoint3d& operator-=(const AcGeVector3d& v) { return *this = *this - v; }

    // Replaces the coordinates.
    AcGePoint3d& set(double xx, double yy, double zz)
    {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }
    // Returns the vector from 0,0,0 to the point.
    AcGeVector3d asVector() const { return AcGeVector3d(x, y, z); }
    // Replaces the point by its image.
    AcGePoint3d& transformBy(const AcGeMatrix3d& matrix);

    // Returns the distance in space, in drawing units.
    double distanceTo(const AcGePoint3d& p) const { return (*this - p).length(); }
    // Tell whether the points lie within tol.equalPoint() of each other. The operators use the
    // value of AcGeContext::gTol at the time of the call.
    bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const
    {
        return distanceTo(p) <= tol.equalPoint();
    }
    bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint3d& p) const { return !isEqualTo(p); }

    // The coordinates.
    double x;
    double y;
    double z;
};
