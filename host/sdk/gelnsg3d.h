// A straight segment and its base classes.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// The root of the geometric values. Values have no owner, and no caller deletes one through a base
// class.
class AcGeEntity3d
{
protected:
    // Only a derived class creates, copies and destroys a value.
    AcGeEntity3d() {}
    ~AcGeEntity3d() {}
    AcGeEntity3d(const AcGeEntity3d&) = default;
    AcGeEntity3d& operator=(const AcGeEntity3d&) = default;
};

// A curve, which has a nearest point to any given point. Points are in the coordinate system that
// the curve was created in.
class AcGeCurve3d : public AcGeEntity3d
{
public:
    // Returns the point of the curve that is nearest to p. The ends are part of the curve.
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& p,
                                       const AcGeTol& tol = AcGeContext::gTol) const = 0;
    // Returns the distance from p to that point, in drawing units.
    virtual double distanceTo(const AcGePoint3d& p,
                              const AcGeTol& tol = AcGeContext::gTol) const = 0;

protected:
    ~AcGeCurve3d() {}  // protected, as in the root
};

// A straight curve.
class AcGeLinearEnt3d : public AcGeCurve3d
{
protected:
    ~AcGeLinearEnt3d() {}  // protected, as in the root
};

// A straight segment. Its ends may coincide; the segment is a point then. The class is final and
// its distance inline, so that a segment created only to compute one distance costs no more than
// the arithmetic.
class AcGeLineSeg3d final : public AcGeLinearEnt3d
{
public:
    // Creates a segment from p1 to p2.
    AcGeLineSeg3d(const AcGePoint3d& p1, const AcGePoint3d& p2) : m_start(p1), m_end(p2) {}

    // Return the ends, and the distance between them in drawing units.
    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    double length() const { return m_start.distanceTo(m_end); }

    // Returns the nearest point of the segment. A point on a horizontal or vertical segment is
    // returned unchanged, to the last bit. The tolerance is not used.
    AcGePoint3d closestPointTo(const AcGePoint3d& p,
                               const AcGeTol& tol = AcGeContext::gTol) const override;

    // Computes the distance from coordinate differences and not from the nearest point: the
    // coordinates of that point are rounded, and far from the origin a rounding error is larger
    // than the point tolerance. Beside the segment it uses the cross product, which is exactly 0
    // for a point on a horizontal or vertical segment of any length.
    double distanceTo(const AcGePoint3d& p, const AcGeTol& = AcGeContext::gTol) const override
    {
        const AcGeVector3d along = m_end - m_start;
        const AcGeVector3d fromStart = p - m_start;
        const double reach = fromStart.dotProduct(along);
        const double whole = along.lengthSqrd();
        return !(reach > 0)     ? fromStart.length()
               : reach >= whole ? (p - m_end).length()
                                : std::sqrt(along.crossProduct(fromStart).lengthSqrd() / whole);
    }

private:
    AcGePoint3d m_start;
    AcGePoint3d m_end;
};
