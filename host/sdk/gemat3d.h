// An affine transformation of space.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

class AcGePlane;

// Works on column vectors: columns 0 to 2 are the images of the axes, column 3 is the image of the
// origin, the last row is 0,0,0,1. A * B applies B first.
class AcGeMatrix3d
{
public:
    constexpr AcGeMatrix3d() : entry{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}} {}

    static const AcGeMatrix3d kIdentity;

    // Counter-clockwise by angle radians, seen from the tip of axis. The identity, to the last
    // bit, for a zero angle; also for an axis of zero length.
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                                 const AcGePoint3d& center = AcGePoint3d::kOrigin);
    static AcGeMatrix3d translation(const AcGeVector3d& vector);
    static AcGeMatrix3d scaling(double factor, const AcGePoint3d& center = AcGePoint3d::kOrigin);

    // Plane through the world origin; axes by the arbitrary axis rule, normal of any length.
    // A zero-length normal stands for 0,0,1.
    static AcGeMatrix3d planeToWorld(const AcGeVector3d& normal);
    static AcGeMatrix3d worldToPlane(const AcGeVector3d& normal);
    static AcGeMatrix3d planeToWorld(const AcGePlane& plane);
    static AcGeMatrix3d worldToPlane(const AcGePlane& plane);

    AcGeMatrix3d operator*(const AcGeMatrix3d& right) const;
    AcGeMatrix3d& preMultBy(const AcGeMatrix3d& left) { return *this = left * *this; }
    AcGeMatrix3d& postMultBy(const AcGeMatrix3d& right) { return *this = *this * right; }

    AcGeMatrix3d& setToIdentity() { return *this = AcGeMatrix3d(); }
    AcGeMatrix3d& setToTranslation(const AcGeVector3d& vector)
    {
        return *this = translation(vector);
    }
    // Replaces the translation column only; the axes stay.
    AcGeMatrix3d& setTranslation(const AcGeVector3d& vector);
    AcGeVector3d translation() const { return AcGeVector3d(entry[0][3], entry[1][3], entry[2][3]); }

    AcGeMatrix3d& setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                 const AcGeVector3d& yAxis, const AcGeVector3d& zAxis);
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                        AcGeVector3d& zAxis) const;

    // The matrix must not be singular.
    AcGeMatrix3d inverse() const;
    AcGeMatrix3d& transposeBy();
    // Of the axes; negative for a matrix that mirrors.
    double det() const;
    // Axes square to each other and of one length within equalVector of that length, which is
    // not zero; mirrored or not.
    bool isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;

    double entry[4][4];  // row, column
};

inline AcGeVector3d operator*(const AcGeMatrix3d& m, const AcGeVector3d& v)
{
    return AcGeVector3d(m.entry[0][0] * v.x + m.entry[0][1] * v.y + m.entry[0][2] * v.z,
                        m.entry[1][0] * v.x + m.entry[1][1] * v.y + m.entry[1][2] * v.z,
                        m.entry[2][0] * v.x + m.entry[2][1] * v.y + m.entry[2][2] * v.z);
}

inline AcGePoint3d operator*(const AcGeMatrix3d& m, const AcGePoint3d& p)
{
    const AcGeVector3d turned = m * p.asVector();
    return AcGePoint3d(turned.x + m.entry[0][3], turned.y + m.entry[1][3],
                       turned.z + m.entry[2][3]);
}
