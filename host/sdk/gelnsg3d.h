// A straight segment and the kinds of thing it is.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// Root of the geometric values. A value has no owner, and nobody deletes it through a base.
class AcGeEntity3d
{
protected:
    // Only a derived class makes, copies and ends a value.
    AcGeEntity3d() {}
    ~AcGeEntity3d() {}
    AcGeEntity3d(const AcGeEntity3d&) = default;
    AcGeEntity3d& operator=(const AcGeEntity3d&) = default;
};

// Whatever has a nearest point. Points are of the system that the curve was made in.
class AcGeCurve3d : public AcGeEntity3d
{
public:
    // The point of the curve nearest to p; the ends belong to the curve.
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& p,
                                       const AcGeTol& tol = AcGeContext::gTol) const = 0;
    // The distance from p to that point, in drawing units.
    virtual double distanceTo(const AcGePoint3d& p,
                              const AcGeTol& tol = AcGeContext::gTol) const = 0;

protected:
    ~AcGeCurve3d() {}  // as that of the root
};

// A straight curve.
class AcGeLinearEnt3d : public AcGeCurve3d
{
protected:
    ~AcGeLinearEnt3d() {}  // as that of the root
};

// A straight segment. Its ends may coincide: it is then a point. The class is final and its
// distance inline, so that a segment made only to be asked for a distance costs no more than the
// arithmetic.
class AcGeLineSeg3d final : public AcGeLinearEnt3d
{
public:
    // From p1 to p2.
    AcGeLineSeg3d(const AcGePoint3d& p1, const AcGePoint3d& p2) : m_start(p1), m_end(p2) {}

    // The ends, and the distance between them in drawing units.
    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    double length() const { return m_start.distanceTo(m_end); }

    // The nearest point of the segment. For a point on a level or upright segment it is that point,
    // to the last bit. The tolerance is not used.
    AcGePoint3d closestPointTo(const AcGePoint3d& p,
                               const AcGeTol& tol = AcGeContext::gTol) const override;

    // The distance is taken from the differences and not from the nearest point: the coordinates of
    // that point are rounded, and far from the origin a rounding is larger than the point
    // tolerance. Beside the segment the cross product is used because it is exactly 0 for a point
    // on a level or upright segment, however long.
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
