// A straight segment and the kinds of thing it is.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

// A value without an owner: no one deletes it through a base.
class AcGeEntity3d
{
protected:
    AcGeEntity3d() {}
    ~AcGeEntity3d() {}
    AcGeEntity3d(const AcGeEntity3d&) = default;
    AcGeEntity3d& operator=(const AcGeEntity3d&) = default;
};

class AcGeCurve3d : public AcGeEntity3d
{
public:
    // The point of the curve nearest to p, the curve's ends included.
    virtual AcGePoint3d closestPointTo(const AcGePoint3d& p,
                                       const AcGeTol& tol = AcGeContext::gTol) const = 0;
    // The distance from p to that point.
    virtual double distanceTo(const AcGePoint3d& p,
                              const AcGeTol& tol = AcGeContext::gTol) const = 0;

protected:
    ~AcGeCurve3d() {}
};

class AcGeLinearEnt3d : public AcGeCurve3d
{
protected:
    ~AcGeLinearEnt3d() {}
};

// Its ends may coincide: it is then a point. Final, and its distance inline, so that a segment made
// only to be asked for a distance costs no more than the arithmetic.
class AcGeLineSeg3d final : public AcGeLinearEnt3d
{
public:
    AcGeLineSeg3d(const AcGePoint3d& p1, const AcGePoint3d& p2) : m_start(p1), m_end(p2) {}

    AcGePoint3d startPoint() const { return m_start; }
    AcGePoint3d endPoint() const { return m_end; }
    double length() const { return m_start.distanceTo(m_end); }

    // Of a point on a level or upright segment: that point, to the last bit.
    AcGePoint3d closestPointTo(const AcGePoint3d& p,
                               const AcGeTol& tol = AcGeContext::gTol) const override;

    // Taken from the differences and not from the nearest point itself: its coordinates would be
    // rounded, and far from the origin a rounding is larger than the point tolerance. Beside the
    // segment the cross product is used since it is exactly 0 for a point on a level or upright
    // segment, however long.
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
