#include "dbMPolygon.h"

#include <cmath>

#include "gelnsg3d.h"
#include "host/database/intersections.h"
#include "host/database/polylinevertices.h"

ACRX_DEFINE_MEMBERS(AcDbMPolygon, AcDbEntity)

namespace
{
typedef std::vector<AcGePoint3d> Loop;
}  // namespace

// The loops [wcs]. Each has at least three corners.
struct AcDbMPolygon::Internals
{
    std::vector<Loop> loops;
};

AcDbMPolygon::AcDbMPolygon() : m_internals(new Internals()) {}

AcDbMPolygon::~AcDbMPolygon()
{
    delete m_internals;
}

namespace
{

// Returns Newell's normal. It is correct for any planar loop, and its length is twice the area.
AcGeVector3d areaVector(const Loop& loop)
{
    AcGeVector3d sum(0, 0, 0);
    for (std::size_t i = 1; i + 1 < loop.size(); ++i)
    {
        sum = sum + (loop[i] - loop[0]).crossProduct(loop[i + 1] - loop[0]);
    }
    return sum;
}

bool crosses(const Loop& a, const Loop& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        const AcDbLine side(a[i], a[(i + 1) % a.size()]);
        for (std::size_t k = 0; k < b.size(); ++k)
        {
            AcGePoint3dArray points;
            host::intersectLine(side, AcDbLine(b[k], b[(k + 1) % b.size()]), AcDb::kOnBothOperands,
                                points);
            if (!points.isEmpty())
            {
                return true;
            }
        }
    }
    return false;
}

bool onLoop(const Loop& loop, const AcGePoint3d& point, double tol)
{
    for (std::size_t i = 0; i < loop.size(); ++i)
    {
        const AcGePoint3d& next = loop[(i + 1) % loop.size()];
        if (host::closestOnSegment(loop[i], next, point).distanceTo(point) <= tol)
        {
            return true;
        }
    }
    return false;
}

// Returns true if a ray along the plane's axis `across` crosses the loop an odd number of times. A
// side includes its lower end but not its upper end.
bool insideLoop(const Loop& loop, const AcGePoint3d& point, double tol)
{
    const AcGeVector3d area = areaVector(loop);
    const AcGeVector3d normal = area.normal();
    if (std::fabs(normal.dotProduct(point - loop[0])) > tol)
    {
        return false;
    }
    const AcGeVector3d across = (loop[1] - loop[0]).normal();
    const AcGeVector3d up = normal.crossProduct(across);
    bool inside = false;
    for (std::size_t i = 0; i < loop.size(); ++i)
    {
        const AcGeVector3d a = loop[i] - point;
        const AcGeVector3d b = loop[(i + 1) % loop.size()] - point;
        const double aUp = a.dotProduct(up);
        const double bUp = b.dotProduct(up);
        if ((aUp > 0) == (bUp > 0))
        {
            continue;
        }
        const double at = aUp / (aUp - bUp);
        inside ^= a.dotProduct(across) * (1 - at) + b.dotProduct(across) * at > 0;
    }
    return inside;
}
}  // namespace

Acad::ErrorStatus AcDbMPolygon::appendLoopFromBoundary(const AcDb2dPolyline* boundary,
                                                       bool excludeCrossing, double)
{
    assertWriteEnabled("AcDbMPolygon::appendLoopFromBoundary");
    if (boundary == nullptr || !boundary->isClosed() || host::cornersOf(*boundary).size() < 3)
    {
        return Acad::eInvalidInput;
    }
    const Loop& loop = host::cornersOf(*boundary);
    for (const Loop& other : m_internals->loops)
    {
        if (excludeCrossing && crosses(loop, other))
        {
            return Acad::eInvalidInput;
        }
    }
    m_internals->loops.push_back(loop);
    return Acad::eOk;
}

int AcDbMPolygon::isPointInsideMPolygon(const AcGePoint3d& worldPoint, AcGeIntArray& loops,
                                        double tol) const
{
    assertReadEnabled("AcDbMPolygon::isPointInsideMPolygon");
    loops.removeAll();
    for (std::size_t i = 0; i < m_internals->loops.size(); ++i)
    {
        const Loop& loop = m_internals->loops[i];
        if (onLoop(loop, worldPoint, tol) || insideLoop(loop, worldPoint, tol))
        {
            loops.append(int(i));
        }
    }
    return loops.length();
}

Acad::ErrorStatus AcDbMPolygon::transformBy(const AcGeMatrix3d& matrix)
{
    assertWriteEnabled("AcDbMPolygon::transformBy");
    if (!host::keepsAngles(matrix))
    {
        return Acad::eCannotScaleNonUniformly;
    }
    for (Loop& loop : m_internals->loops)
    {
        for (AcGePoint3d& point : loop)
        {
            point.transformBy(matrix);
        }
    }
    setNormal((matrix * normal()).normal());
    return Acad::eOk;
}
