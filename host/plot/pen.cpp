#include "host/plot/pen.h"

#include <cmath>

#include "host/geometry/ocs.h"

namespace host::plot
{
namespace
{
bool isDrawable(double x, double y, double z)
{
    // Below this limit the squares of coordinates are finite as well.
    const double limit = 1e100;
    return std::abs(x) < limit && std::abs(y) < limit && std::abs(z) < limit;
}

template <class T>
bool isDrawable(const T& value)
{
    return isDrawable(value.x, value.y, value.z);
}
}  // namespace

Pen Pen::withinPlane(const AcGeVector3d& normal) const
{
    return within(Ocs(normal).matrix());
}

bool Pen::carry(const Points& points, Points& carried) const
{
    carried.reserve(points.size());
    for (const AcGePoint3d& point : points)
    {
        carried.push_back(m_toWorld * point);
        if (!isDrawable(carried.back()))
        {
            return false;
        }
    }
    return !points.empty();
}

void Pen::path(const Points& points, bool closed) const
{
    Points carried;
    if (carry(points, carried))
    {
        m_sink->path(carried, closed, m_color);
    }
}

void Pen::area(const std::vector<Points>& loops) const
{
    std::vector<Points> carried;
    for (const Points& loop : loops)
    {
        if (!carry(loop, carried.emplace_back()))
        {
            carried.pop_back();
        }
    }
    if (!carried.empty())
    {
        m_sink->area(carried, m_color);
    }
}

void Pen::dot(const AcGePoint3d& point) const
{
    const AcGePoint3d carried = m_toWorld * point;
    if (isDrawable(carried))
    {
        m_sink->dot(carried, m_color);
    }
}

void Pen::ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both) const
{
    const AcGePoint3d carried = m_toWorld * from;
    const AcGeVector3d direction = m_toWorld * along;
    if (isDrawable(carried) && isDrawable(direction))
    {
        m_sink->ray(carried, direction, both, m_color);
    }
}

void Pen::text(const TextLine& line) const
{
    TextLine carried = line;
    carried.origin = m_toWorld * line.origin;
    carried.along = m_toWorld * line.along;
    carried.up = m_toWorld * line.up;
    if (isDrawable(carried.origin) && isDrawable(carried.along) && isDrawable(carried.up))
    {
        m_sink->text(carried, m_color);
    }
}
}  // namespace host::plot
