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
void drawMesh(const EntityTags& mesh, const Points& points, const Pen& pen)
{
    const int flags = mesh.integer(schema::entity::flags);
    const auto rows = std::size_t(std::max(mesh.integer(schema::polyline::smoothRows)
                                               ? mesh.integer(schema::polyline::smoothRows)
                                               : mesh.integer(schema::polyline::meshRows),
                                           1));
    const std::size_t across = points.size() / rows;
    for (std::size_t row = 0; row < rows && across > 0; ++row)
    {
        const auto first = points.begin() + std::ptrdiff_t(row * across);
        pen.path(Points(first, first + std::ptrdiff_t(across)),
                 (flags & schema::polyline::closedAcrossFlag) != 0);
    }
    for (std::size_t column = 0; column < across; ++column)
    {
        Points line;
        for (std::size_t row = 0; row < rows; ++row)
        {
            line.push_back(points[row * across + column]);
        }
        pen.path(line, (flags & schema::polyline::closedFlag) != 0);
    }
}

// Draws a face of a mesh. A face names up to four vertices by numbers from 1. A number is negative
// if the edge that begins at its vertex is hidden.
void drawFaceOf(const EntityTags& face, const Points& points, const Pen& pen)
{
    std::vector<int> corners;
    for (const Code code : schema::vertex::corners)
    {
        const int corner = face.integer(code);
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

void drawFaces(std::span<const EntityTags> vertices, const Pen& pen)
{
    Points points;
    for (const EntityTags& vertex : vertices)
    {
        const int flags = vertex.integer(schema::entity::flags);
        if ((flags & schema::vertex::faceFlag) == 0 || (flags & schema::vertex::meshFlag) != 0)
        {
            points.push_back(vertex.point(schema::vertex::position));
        }
        else
        {
            drawFaceOf(vertex, points, pen);
        }
    }
}

bool isOfFrame(const EntityTags& vertex)
{
    return (vertex.integer(schema::entity::flags) & schema::vertex::splineFrameFlag) != 0;
}
}  // namespace

void drawLightPolyline(const EntityTags& polyline, const Pen& pen)
{
    const double elevation = polyline.real(schema::lightpolyline::elevation);
    const double width = polyline.real(schema::lightpolyline::width);
    std::vector<Vertex> vertices;
    for (const dxf::Tag& tag : polyline.all())
    {
        if (tag.code == schema::lightpolyline::vertex)
        {
            vertices.push_back({{polyline.real(tag), 0, elevation}, 0, width, width});
            continue;
        }
        if (vertices.empty())
        {
            continue;
        }
        Vertex& vertex = vertices.back();
        double* const field = tag.code == schema::lightpolyline::vertex.y()   ? &vertex.point.y
                              : tag.code == schema::lightpolyline::startWidth ? &vertex.startWidth
                              : tag.code == schema::lightpolyline::endWidth   ? &vertex.endWidth
                              : tag.code == schema::lightpolyline::bulge      ? &vertex.bulge
                                                                              : nullptr;
        if (field != nullptr)
        {
            *field = polyline.real(tag);
        }
    }
    const bool closed =
        (polyline.integer(schema::entity::flags) & schema::polyline::closedFlag) != 0;
    drawFlat(vertices, closed, pen.withinPlane(polyline.normal()));
}

void drawPolyline(const EntityTags& polyline, std::span<const EntityTags> vertices, const Pen& pen)
{
    const int flags = polyline.integer(schema::entity::flags);
    if ((flags & schema::polyline::facesFlag) != 0)
    {
        drawFaces(vertices, pen);
        return;
    }
    const bool spatial =
        (flags & (schema::polyline::spatialFlag | schema::polyline::meshFlag)) != 0;
    const double elevation = polyline.point(schema::polyline::elevation).z;
    const double startWidth = polyline.real(schema::polyline::startWidth);
    const double endWidth = polyline.real(schema::polyline::endWidth);
    std::vector<Vertex> flat;
    Points points;
    for (const EntityTags& vertex : vertices)
    {
        if (isOfFrame(vertex))
        {
            continue;
        }
        const AcGePoint3d point = vertex.point(schema::vertex::position);
        points.push_back(point);
        flat.push_back({{point.x, point.y, elevation},
                        vertex.real(schema::vertex::bulge),
                        vertex.real(schema::vertex::startWidth, startWidth),
                        vertex.real(schema::vertex::endWidth, endWidth)});
    }
    const bool closed = (flags & schema::polyline::closedFlag) != 0;
    if ((flags & schema::polyline::meshFlag) != 0)
    {
        drawMesh(polyline, points, pen);
    }
    else if (spatial)
    {
        pen.path(points, closed);
    }
    else
    {
        drawFlat(flat, closed, pen.withinPlane(polyline.normal()));
    }
}
}  // namespace host::plot
