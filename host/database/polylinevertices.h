// The corners of a 2D polyline, both as vertex entities and as points of the world.
#pragma once

#include <vector>

#include "dbents.h"

// Vertex i lies at point i. All points have the same elevation above the plane of the polyline's
// normal. The polyline owns its vertices until it joins a drawing; then the drawing owns them.
// Accessors return [borrowed] parts that live as long as the polyline.
struct AcDb2dPolyline::Internals
{
public:
    static Internals& of(const AcDb2dPolyline& polyline) { return *polyline.m_internals; }

    // Adds a vertex. The plane of the polyline must be that of the world.
    void add(const AcGePoint3d& position);
    void deleteVertices();
    // Moves the polyline: `points` [wcs] replaces the points, must be as many as before, and the
    // vertices follow. Returns the new elevation.
    double moveTo(std::vector<AcGePoint3d> points, const AcGeVector3d& normal, double elevation);

    const std::vector<AcDb2dVertex*>& vertices() const { return m_vertices; }
    const std::vector<AcGePoint3d>& points() const { return m_points; }  // [wcs]

    // The object that ends the sequence in a drawing, or nullptr outside a drawing.
    AcDbStub* sequenceEnd = nullptr;

private:
    std::vector<AcDb2dVertex*> m_vertices;
    std::vector<AcGePoint3d> m_points;
};

namespace host
{
using PolylineVertices = AcDb2dPolyline::Internals;

// Returns the points of the vertices [wcs] in their order. A closed polyline does not repeat the
// first one.
inline const std::vector<AcGePoint3d>& cornersOf(const AcDb2dPolyline& polyline)
{
    return PolylineVertices::of(polyline).points();
}
}  // namespace host
