#include "engine/cleararea.h"

#include <algorithm>
#include <cmath>

#include "output/tolerance.h"

ClearArea::ClearArea(const AcGePoint3d& Q0, const AcGePoint3d& Q1, const AcGePoint3d& Q2,
                     const AcGePoint3d& Q3, double tolerance)
    : m_z(Q0.z), m_tolerance(tolerance), m_largest(0), m_millionth(0)
{
    const AcGePoint3d* const corners[4] = {&Q0, &Q1, &Q2, &Q3};
    m_isConvex = setEdges(corners);
    m_millionth = (std::max)(Q0.distanceTo(Q2), Q1.distanceTo(Q3)) * 1e-6;
}

// All turns go one way in a convex outline, and in no other of four corners.
bool ClearArea::setEdges(const AcGePoint3d* const (&corners)[4])
{
    int leftTurns = 0;
    for (int i = 0; i < 4; ++i)
    {
        const AcGePoint3d& corner = *corners[i];
        const AcGeVector3d edge = *corners[(i + 1) % 4] - corner;
        const AcGeVector3d next = *corners[(i + 2) % 4] - *corners[(i + 1) % 4];
        const double turn = edge.x * next.y - edge.y * next.x;
        const double length = edge.length();
        // Within 1e70 areas and their squares are finite.
        if (!(largestCoordinate(corner) < 1e70) || !isMeasurable(corner) || corner.z != m_z ||
            !(length > 0) || !(std::fabs(turn) > 1e-9 * length * next.length()))
        {
            return false;
        }
        leftTurns += turn > 0 ? 1 : 0;
        m_largest = (std::max)(m_largest, largestCoordinate(corner));
        const Edge set = {corner.x, corner.y, -edge.y / length, edge.x / length};
        m_edges[i] = set;
    }
    for (int i = 0; i < 4 && leftTurns == 0; ++i)
    {
        m_edges[i].acrossX = -m_edges[i].acrossX;
        m_edges[i].acrossY = -m_edges[i].acrossY;
    }
    return leftTurns == 0 || leftTurns == 4;
}

int ClearArea::locate(const AcGePoint3d& P) const
{
    if (!m_isConvex || P.z != m_z || !isMeasurable(P))
    {
        return 0;
    }
    // Four times the tolerance, so that the rounding of the distances below does not count.
    const double largest = (std::max)(m_largest, largestCoordinate(P));
    const double margin = (std::max)(m_millionth, 4 * atLeastRounding(m_tolerance, largest));
    bool isInside = true;
    for (int i = 0; i < 4; ++i)
    {
        const Edge& edge = m_edges[i];
        const double distance = (P.x - edge.x) * edge.acrossX + (P.y - edge.y) * edge.acrossY;
        if (distance < -margin)
        {
            return -1;
        }
        isInside = isInside && distance > margin;
    }
    return isInside ? 1 : 0;
}
