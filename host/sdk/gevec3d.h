// A displacement or direction in space.
#pragma once

#include <cmath>

#include "gegbl.h"

// Three components in drawing units. The call that takes or returns a vector names its coordinate
// system.
class AcGeVector3d
{
public:
    // Create the vector 0,0,0 or one with the given components.
    constexpr AcGeVector3d() : x(0), y(0), z(0) {}
    constexpr AcGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}

    static const AcGeVector3d kIdentity;  // 0,0,0
    static const AcGeVector3d kXAxis;     // 1,0,0
    static const AcGeVector3d kYAxis;     // 0,1,0
    static const AcGeVector3d kZAxis;     // 0,0,1

    // Work on each component. A divisor of 0 gives components that are not finite.
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

    // Replaces the components.
    AcGeVector3d& set(double xx, double yy, double zz)
    {
        x = xx;
        y = yy;
        z = zz;
        return *this;
    }

    // Return a product, the square of the length, or the length.
    double dotProduct(const AcGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
    AcGeVector3d crossProduct(const AcGeVector3d& v) const
    {
        return AcGeVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
    }
    double lengthSqrd() const { return dotProduct(*this); }
    double length() const { return std::sqrt(lengthSqrd()); }

    // Return the unit vector of the same direction; normalize replaces the vector by it. A vector
    // no longer than tol.equalVector() has no direction and stays unchanged.
    AcGeVector3d normal(const AcGeTol& tol = AcGeContext::gTol) const
    {
        const double size = length();
        return size > tol.equalVector() ? *this / size : *this;
    }
    AcGeVector3d& normalize(const AcGeTol& tol = AcGeContext::gTol) { return *this = normal(tol); }

    // Tell whether the vector, or the difference of two vectors, is no longer than
    // tol.equalVector(). The operators use the value of AcGeContext::gTol at the time of the call.
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

    // Tells whether the vectors have the same or opposite directions: the sine of the angle between
    // them is no larger than tol.equalVector(). A zero-length vector is parallel to no vector.
    bool isParallelTo(const AcGeVector3d& v, const AcGeTol& tol = AcGeContext::gTol) const;

    // Returns a unit vector perpendicular to this one. By the arbitrary axis rule it is the X axis
    // of the plane whose normal is this vector.
    AcGeVector3d perpVector() const;

    // Returns the unsigned angle to v [rad], from 0 to pi, or 0 when either vector is 0,0,0.
    double angleTo(const AcGeVector3d& v) const
    {
        const double across = crossProduct(v).length();
        const double along = dotProduct(v);
        // A zero vector may give a negative zero for `along`, which atan2 would take for the
        // opposite direction.
        return across == 0 && along == 0 ? 0 : std::atan2(across, along);
    }

    // Returns the angle to v [rad], from 0 to 2 pi, counter-clockwise when seen from the tip of
    // ref.
    double angleTo(const AcGeVector3d& v, const AcGeVector3d& ref) const;

    // The components.
    double x;
    double y;
    double z;
};

// Returns the vector times a factor.
inline AcGeVector3d operator*(double factor, const AcGeVector3d& v)
{
    return v * factor;
}
