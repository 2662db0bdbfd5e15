// A position in space.
#pragma once

#include "gevec3d.h"

class AcGeMatrix3d;

class AcGePoint3d
{
public:
    constexpr AcGePoint3d() : x(0), y(0), z(0) {}
    constexpr AcGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGePoint3d kOrigin;

    // index is 0, 1 or 2.
    double& operator[](unsigned index) { return index == 0 ? x : index == 1 ? y : z; }
    double operator[](unsigned index) const { return index == 0 ? x : index == 1 ? y : z; }

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

    AcGePoint3d& set(double xx, double yy, double zz)
    {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }
    AcGeVector3d asVector() const { return AcGeVector3d(x, y, z); }
    AcGePoint3d& transformBy(const AcGeMatrix3d& matrix);

    double distanceTo(const AcGePoint3d& p) const { return (*this - p).length(); }
    bool isEqualTo(const AcGePoint3d& p, const AcGeTol& tol = AcGeContext::gTol) const
    {
        return distanceTo(p) <= tol.equalPoint();
    }
    bool operator==(const AcGePoint3d& p) const { return isEqualTo(p); }
    bool operator!=(const AcGePoint3d& p) const { return !isEqualTo(p); }

    double x;
    double y;
    double z;
};
