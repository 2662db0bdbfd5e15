// A displacement or direction in space.
#pragma once

#include <cmath>

#include "gegbl.h"

class AcGeVector3d
{
public:
    constexpr AcGeVector3d() : x(0), y(0), z(0) {}
    constexpr AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGeVector3d kIdentity;  // 0,0,0
    static const AcGeVector3d kXAxis;
    static const AcGeVector3d kYAxis;
    static const AcGeVector3d kZAxis;

    AcGeVector3d operator-() const { return AcGeVector3d(-x, -y, -z); }
    AcGeVector3d operator+(const AcGeVector3d& v) const
    {
        return AcGeVector3d(x + v.x, y + v.y, z + v.z);
    }
    AcGeVector3d operator-(const AcGeVector3d& v) const
    {
        return AcGeVector3d(x - v.x, y - v.y, z - v.z);
    }
    AcGeVector3d operator*(double factor) const
    {
        return AcGeVector3d(x * factor, y * factor, z * factor);
    }
    AcGeVector3d operator/(double divisor) const
    {
        return AcGeVector3d(x / divisor, y / divisor, z / divisor);
    }

    AcGeVector3d& set(double xx, double yy, double zz)
    {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }

    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const
    {
        return AcGeVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
    }
    double lengthSqrd() const { return dotProduct(*this); }
    double length() const { return std::sqrt(lengthSqrd()); }

    // Unit vector of the same direction. A zero-length vector has none and stays as it is.
    AcGeVector3d normal(const AcGeTol& tol = AcGeContext::gTol) const
    {
        const double size = length();
        return size > tol.equalVector() ? *this / size : *this;
    }
    AcGeVector3d& normalize(const AcGeTol& tol = AcGeContext::gTol) { return *this = normal(tol); }

    bool isZeroLength(const AcGeTol& tol = AcGeContext::gTol) const
    {
        return length() <= tol.equalVector();
    }
    bool isEqualTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const
    {
        return (*this - v).isZeroLength(tol);
    }
    bool operator==(const AcGeVector3d& v) const { return isEqualTo(v); }
    bool operator!=(const AcGeVector3d& v) const { return !isEqualTo(v); }

    // Of the same or the opposite direction. A zero-length vector is parallel to nothing.
    bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;

    // Unit vector square to this one: the X axis of the plane whose normal this is, by the
    // arbitrary axis rule.
    AcGeVector3d perpVector() const;

    // Unsigned angle [0, pi]; 0 when either vector is 0,0,0.
    double angleTo(const AcGeVector3d& v) const
    {
        const double across = crossProduct(v).length();
        const double along = dotProduct(v);
        // A zero vector may give a negative zero along, which atan2 would read as opposite.
        return across == 0 && along == 0 ? 0 : std::atan2(across, along);
    }

    // Angle to v [0, 2 pi], counter-clockwise seen from the tip of ref.
    double angleTo(const AcGeVector3d& v, const AcGeVector3d& ref) const;

    double x;
    double y;
    double z;
};

inline AcGeVector3d operator*(double factor, const AcGeVector3d& v)
{
    return v * factor;
}
