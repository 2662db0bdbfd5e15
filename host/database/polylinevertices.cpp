#include "host/database/polylinevertices.h"

#include "host/geometry/ocs.h"

void AcDb2dPolyline::Internals::add(const AcGePoint3d& position)
{
    m_vertices.push_back(new AcDb2dVertex(position));
    m_points.push_back(position);
}

void AcDb2dPolyline::Internals::deleteVertices()
{
    for (const AcDb2dVertex* vertex : m_vertices)
    {
        delete vertex;
    }
}

double AcDb2dPolyline::Internals::moveTo(std::vector<AcGePoint3d> points,
                                         const AcGeVector3d& normal, double elevation)
{
    m_points = std::move(points);
    const host::Ocs plane(normal);
    for (std::size_t i = 0; i < m_points.size(); ++i)
    {
        const AcGePoint3d flat = plane.toObject(m_points[i]);
        elevation = i == 0 ? flat.z : elevation;
        m_vertices[i]->m_position.set(flat.x, flat.y, elevation);
    }
    return elevation;
}
