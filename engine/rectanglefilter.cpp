#include "engine/rectanglefilter.h"

#include <algorithm>
#include <cmath>

#include "engine/pointtests.h"
#include "output/tolerance.h"

RectangleFilter::RectangleFilter(const AcGePoint3d (&corners)[4], double elevation)
    : m_corner(corners[0]),
      m_along(corners[1] - corners[0]),
      m_up(corners[3] - corners[0]),
      m_width(m_along.length()),
      m_height(m_up.length()),
      m_guard(HUGE_VAL)
{
    const double tolerance = AcGeContext::gTol.equalPoint();
    const double skew = std::fabs(m_along.x * m_up.x + m_along.y * m_up.y);
    bool isRectangle = m_width > 0 && m_height > 0 &&
                       corners[2].distanceTo(corners[1] + m_up) <= tolerance &&
                       skew <= tolerance * (std::min)(m_width, m_height);
    for (int i = 0; i < 4; ++i)
    {
        isRectangle = isRectangle && corners[i].z == elevation;
    }
    m_along = m_along * (1 / m_width);
    m_up = m_up * (1 / m_height);
    if (isRectangle)
    {
        const double millionth = 1e-6 * corners[0].distanceTo(corners[2]);
        const double largest =
            (std::max)(largestCoordinate(corners[0]), largestCoordinate(corners[2]));
        m_guard = (std::max)(millionth, 4 * atLeastRounding(largestPointTolerance(), largest));
    }
}

int RectangleFilter::locate(const AcGePoint3d& P) const
{
    const AcGeVector3d fromCorner = P - m_corner;
    const double x = fromCorner.x * m_along.x + fromCorner.y * m_along.y;
    const double y = fromCorner.x * m_up.x + fromCorner.y * m_up.y;
    const double depth = (std::min)((std::min)(x, m_width - x), (std::min)(y, m_height - y));
    if (depth < -m_guard)
    {
        return -1;
    }
    return depth > m_guard ? 1 : 0;
}
