// The corners of a 2D polyline, as entities and as points of the world.
#pragma once

#include <vector>

#include "dbents.h"

// Vertex i lies at point i, and all at one elevation above the plane of the polyline's normal.
// Outside a drawing the vertices are the polyline's, in one the drawing's.
struct AcDb2dPolyline::Internals
{
public:
    static Internals& of(const AcDb2dPolyline& polyline) { return *polyline.m_internals; }

    // One more vertex, of a polyline whose plane is the world's.
    void add(const AcGePoint3d& position);
    void deleteVertices();
    // The vertices follow; `points` are as many as before. Gives the new elevation.
    double moveTo(std::vector<AcGePoint3d> points, const AcGeVector3d& normal, double elevation);

    const std::vector<AcDb2dVertex*>& vertices() const { return m_vertices; }
    const std::vector<AcGePoint3d>& points() const { return m_points; }  // [wcs]

    // The object that ends the sequence in a drawing; null outside.
    AcDbStub* sequenceEnd = nullptr;

private:
    std::vector<AcDb2dVertex*> m_vertices;
    std::vector<AcGePoint3d> m_points;
};

namespace host
{
using PolylineVertices = AcDb2dPolyline::Internals;

// The vertices [wcs] in their order; a closed polyline does not repeat the first one.
inline const std::vector<AcGePoint3d>& cornersOf(const AcDb2dPolyline& polyline)
{
    return PolylineVertices::of(polyline).points();
}
}  // namespace host
