// An affine transformation of space.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

class AcGePlane;

// A matrix for column vectors: columns 0 to 2 are the images of the axes, column 3 is the image of
// the origin, and the last row is 0,0,0,1. A * B applies B first.
class AcGeMatrix3d
{
public:
    // Creates the identity.
    constexpr AcGeMatrix3d() : entry{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}} {}

    static const AcGeMatrix3d kIdentity;  // maps everything to itself

    // Returns a rotation by angle [rad] about the axis through center. It is counter-clockwise when
    // seen from the tip of axis, which may have any length. A zero angle or a zero-length axis
    // gives the identity, to the last bit.
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                                 const AcGePoint3d& center = AcGePoint3d::kOrigin);
    // Returns a translation by vector.
    static AcGeMatrix3d translation(const AcGeVector3d& vector);
    // Returns a scaling about center by factor, which is the same in every direction.
    static AcGeMatrix3d scaling(double factor, const AcGePoint3d& center = AcGePoint3d::kOrigin);

    // Return the matrix from a plane's own coordinate system to [wcs], or the reverse. The plane of
    // a normal passes through the world origin, and its axes follow from the arbitrary axis rule.
    // The normal may have any length; a zero-length normal counts as 0,0,1.
    static AcGeMatrix3d planeToWorld(const AcGeVector3d& normal);
    static AcGeMatrix3d worldToPlane(const AcGeVector3d& normal);
    static AcGeMatrix3d planeToWorld(const AcGePlane& plane);
    static AcGeMatrix3d worldToPlane(const AcGePlane& plane);

    // Multiply two matrices. A * B applies B first; preMultBy sets this to left * this, postMultBy
    // sets it to this * right.
    AcGeMatrix3d operator*(const AcGeMatrix3d& right) const;
    AcGeMatrix3d& preMultBy(const AcGeMatrix3d& left) { return *this = left * *this; }
    AcGeMatrix3d& postMultBy(const AcGeMatrix3d& right) { return *this = *this * right; }

    // Replace the whole matrix.
    AcGeMatrix3d& setToIdentity() { return *this = AcGeMatrix3d(); }
    AcGeMatrix3d& setToTranslation(const AcGeVector3d& vector)
    {
        return *this = translation(vector);
    }
    // Replaces the translation column and leaves the axes unchanged; translation() returns that
    // column.
    AcGeMatrix3d& setTranslation(const AcGeVector3d& vector);
    AcGeVector3d translation() const { return AcGeVector3d(entry[0][3], entry[1][3], entry[2][3]); }

    // Replace and return the columns. The matrix maps coordinates along these axes to the
    // coordinate system that the axes are given in. The axes are stored unchanged, with any length
    // and direction.
    AcGeMatrix3d& setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                 const AcGeVector3d& yAxis, const AcGeVector3d& zAxis);
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                        AcGeVector3d& zAxis) const;

    // Returns the inverse. A singular matrix gives values that are not finite. The inverse of
    // perpendicular unit axes is their transpose, without rounding.
    AcGeMatrix3d inverse() const;
    // Exchanges rows and columns, including the translation.
    AcGeMatrix3d& transposeBy();
    // Returns the determinant of the axes, which is negative for a matrix that mirrors.
    double det() const;
    // Tells whether the axes are perpendicular to each other and equal in length, which must not be
    // zero. The tolerance is equalVector times that length. The matrix may mirror.
    bool isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;

    double entry[4][4];  // row, column
};

// Returns the image of a vector, which the translation does not affect.
inline AcGeVector3d operator*(const AcGeMatrix3d& m, const AcGeVector3d& v)
{
    return AcGeVector3d(m.entry[0][0] * v.x + m.entry[0][1] * v.y + m.entry[0][2] * v.z,
                        m.entry[1][0] * v.x + m.entry[1][1] * v.y + m.entry[1][2] * v.z,
                        m.entry[2][0] * v.x + m.entry[2][1] * v.y + m.entry[2][2] * v.z);
}

// Returns the image of a point.
inline AcGePoint3d operator*(const AcGeMatrix3d& m, const AcGePoint3d& p)
{
    const AcGeVector3d turned = m * p.asVector();
    return AcGePoint3d(turned.x + m.entry[0][3], turned.y + m.entry[1][3],
                       turned.z + m.entry[2][3]);
}
