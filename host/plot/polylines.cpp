#include <algorithm>
#include <cmath>

#include "host/dxf/schema/curves.h"
#include "host/dxf/schema/entities.h"
#include "host/plot/curves.h"
#include "host/plot/entities.h"

namespace host::plot
{
namespace
{
AcGeVector3d unitLeft(const AcGePoint3d& from, const AcGePoint3d& to)
{
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    return length > 0 ? AcGeVector3d(from.y - to.y, to.x - from.x, 0) / length : AcGeVector3d();
}

// Draws a ribbon along the chords of one segment; its width changes evenly from start to end.
void drawWide(const Points& points, double startWidth, double endWidth, const Pen& pen)
{
    const std::size_t last = points.size() - 1;
    Points left, right;
    for (std::size_t i = 0; i <= last; ++i)
    {
        const AcGeVector3d before = unitLeft(points[i > 0 ? i - 1 : 0], points[i > 0 ? i : 1]);
        const AcGeVector3d after =
            unitLeft(points[i < last ? i : last - 1], points[i < last ? i + 1 : last]);
        const double width = startWidth + (endWidth - startWidth) * double(i) / double(last);
        const AcGeVector3d side = (before + after) * (width / 4);
        left.push_back(points[i] + side);
        right.push_back(points[i] - side);
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    pen.area({left});
}

void drawFlat(const std::vector<Vertex>& vertices, bool closed, const Pen& pen)
{
    pen.path(chain(vertices, closed), closed);
    for (std::size_t i = 0; i + (closed ? 0 : 1) < vertices.size(); ++i)
    {
        const Vertex& from = vertices[i];
        if (from.startWidth > 0 || from.endWidth > 0)
        {
            const AcGePoint3d to = vertices[(i + 1) % vertices.size()].point;
            Points points = segment(from, to);
            points.push_back(to);
            drawWide(points, from.startWidth, from.endWidth, pen);
        }
    }
}

// The file stores the points of a mesh row by row.
void drawMesh(const schema::polyline::Shape& mesh, const Points& points, const Pen& pen)
{
    const auto rows = std::size_t(std::max(mesh.smoothRows ? mesh.smoothRows : mesh.meshRows, 1));
    const std::size_t across = points.size() / rows;
    for (std::size_t row = 0; row < rows && across > 0; ++row)
    {
        const auto first = points.begin() + std::ptrdiff_t(row * across);
        pen.path(Points(first, first + std::ptrdiff_t(across)),
                 (mesh.flags & schema::polyline::closedAcrossFlag) != 0);
    }
    for (std::size_t column = 0; column < across; ++column)
    {
        Points line;
        for (std::size_t row = 0; row < rows; ++row)
        {
            line.push_back(points[row * across + column]);
        }
        pen.path(line, (mesh.flags & schema::polyline::closedFlag) != 0);
    }
}

// Draws a face of a mesh by its corners; leaves out those that are no vertices of the mesh.
void drawFaceOf(const schema::vertex::Shape& face, const Points& points, const Pen& pen)
{
    std::vector<int> corners;
    for (const int corner : {face.corner1, face.corner2, face.corner3, face.corner4})
    {
        if (corner != 0 && std::size_t(std::abs(corner)) <= points.size())
        {
            corners.push_back(corner);
        }
    }
    const auto at = [&](std::size_t i)
    { return points[std::size_t(std::abs(corners[i % corners.size()])) - 1]; };
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        if (corners[i] > 0)
        {
            pen.path({at(i), at(i + 1)});
        }
    }
}

void drawFaces(std::span<const schema::vertex::Shape> vertices, const Pen& pen)
{
    Points points;
    for (const schema::vertex::Shape& vertex : vertices)
    {
        const bool isFace = (vertex.flags & schema::vertex::faceFlag) != 0;
        if (isFace && (vertex.flags & schema::vertex::meshFlag) == 0)
        {
            drawFaceOf(vertex, points, pen);
        }
        else
        {
            points.push_back(vertex.position);
        }
    }
}

bool isOfFrame(const schema::vertex::Shape& vertex)
{
    return (vertex.flags & schema::vertex::splineFrameFlag) != 0;
}
}  // namespace

void drawLightPolyline(const EntityTags& entity, const Pen& pen)
{
    const auto polyline = entity.read(schema::lightpolyline::table);
    std::vector<Vertex> vertices;
    for (const auto& vertex : entity.readAll(schema::lightpolyline::vertex))
    {
        vertices.push_back({{vertex.point.x, vertex.point.y, polyline.elevation},
                            vertex.bulge,
                            vertex.startWidth.value_or(polyline.width),
                            vertex.endWidth.value_or(polyline.width)});
    }
    const bool closed = (polyline.flags & schema::polyline::closedFlag) != 0;
    drawFlat(vertices, closed, pen.withinPlane(polyline.normal));
}

void drawPolyline(const EntityTags& entity, std::span<const schema::vertex::Shape> vertices,
                  const Pen& pen)
{
    const schema::polyline::Shape polyline = entity.read(schema::polyline::shape);
    if ((polyline.flags & schema::polyline::facesFlag) != 0)
    {
        drawFaces(vertices, pen);
        return;
    }
    std::vector<Vertex> flat;
    Points points;
    for (const schema::vertex::Shape& vertex : vertices)
    {
        if (isOfFrame(vertex))
        {
            continue;
        }
        points.push_back(vertex.position);
        flat.push_back({{vertex.position.x, vertex.position.y, polyline.elevation.z},
                        vertex.bulge,
                        vertex.startWidth.value_or(polyline.startWidth),
                        vertex.endWidth.value_or(polyline.endWidth)});
    }
    const bool closed = (polyline.flags & schema::polyline::closedFlag) != 0;
    if ((polyline.flags & schema::polyline::meshFlag) != 0)
    {
        drawMesh(polyline, points, pen);
    }
    else if ((polyline.flags & schema::polyline::spatialFlag) != 0)
    {
        pen.path(points, closed);
    }
    else
    {
        drawFlat(flat, closed, pen.withinPlane(polyline.normal));
    }
}
}  // namespace host::plot
