#include "gelnsg3d.h"

#include "host/geometry/steadypoint.h"

AcGePoint3d AcGeLineSeg3d::closestPointTo(const AcGePoint3d& p, const AcGeTol&) const
{
    const AcGeVector3d along = m_end - m_start;
    const AcGeVector3d fromStart = p - m_start;
    const double reach = fromStart.dotProduct(along);
    const double whole = along.lengthSqrd();
    if (!(reach > 0))
    {
        return m_start;
    }
    if (reach >= whole)
    {
        return m_end;
    }
    // Cross products are used instead of a difference: for a point on a horizontal or vertical
    // segment the way from p to its foot is then exactly 0.
    const AcGeVector3d aside = fromStart.crossProduct(along).crossProduct(along) / whole;
    return host::steadyPoint(m_start, along * (reach / whole), p, aside);
}
