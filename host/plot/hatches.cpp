#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
#include "host/dxf/schema/hatch.h"
#include "host/plot/curves.h"
#include "host/plot/entities.h"
#include "host/plot/tagcursor.h"

namespace host::plot
{
namespace
{
AcGePoint3d flat(const schema::PlanePoint& point)
{
    return {point.x, point.y, 0};
}

Points polylineLoop(TagCursor& cursor)
{
    const auto loop = cursor.read(schema::hatch::polylineLoop);
    std::vector<Vertex> vertices;
    for (int i = 0; i < loop.vertices && cursor.at(schema::hatch::vertex); ++i)
    {
        const auto vertex = loop.hasBulges != 0 ? cursor.read(schema::hatch::bulgedVertex)
                                                : cursor.read(schema::hatch::vertex);
        vertices.push_back({flat(vertex.point), vertex.bulge});
    }
    return chain(vertices, true);
}

// Returns the arc between the axes of an edge. The angles of a clockwise edge are measured
// clockwise.
Points arcOfEdge(const schema::hatch::Turn& turn, const AcGePoint3d& centre,
                 const AcGeVector3d& major, const AcGeVector3d& minor)
{
    return ellipse(centre, major, turn.isCounterClockwise != 0 ? minor : -minor,
                   toRadians(turn.start), toRadians(turn.end));
}

Points arcEdge(TagCursor& cursor)
{
    const auto edge = cursor.read(schema::hatch::arcEdge);
    return arcOfEdge(edge, flat(edge.centre), {edge.radius, 0, 0}, {0, edge.radius, 0});
}

Points ellipseEdge(TagCursor& cursor)
{
    const auto edge = cursor.read(schema::hatch::ellipseEdge);
    const AcGeVector3d major = flat(edge.majorAxis).asVector();
    return arcOfEdge(edge, flat(edge.centre), major,
                     AcGeVector3d(-major.y, major.x, 0) * edge.ratio);
}

Points splineEdge(TagCursor& cursor)
{
    const auto edge = cursor.read(schema::hatch::splineEdge);
    std::vector<double> knots, weights;
    for (int i = 0; i < edge.knots && cursor.at(schema::hatch::knot); ++i)
    {
        knots.push_back(cursor.read(schema::hatch::knot).value);
    }
    Points poles;
    for (int i = 0; i < edge.poles && cursor.at(schema::hatch::pole); ++i)
    {
        const auto pole = cursor.read(schema::hatch::pole);
        poles.push_back(flat(pole.point));
        if (pole.weight)
        {
            weights.push_back(*pole.weight);
        }
    }
    return bspline(edge.degree, knots, poles, weights);
}

Points edgePoints(TagCursor& cursor)
{
    switch (cursor.read(schema::hatch::edge).kind)
    {
        case schema::hatch::lineKind:
        {
            const auto edge = cursor.read(schema::hatch::lineEdge);
            return {flat(edge.start), flat(edge.end)};
        }
        case schema::hatch::arcKind:
            return arcEdge(cursor);
        case schema::hatch::ellipseKind:
            return ellipseEdge(cursor);
        case schema::hatch::splineKind:
            return splineEdge(cursor);
        default:
            return {};
    }
}

Points edgeLoop(TagCursor& cursor)
{
    Points loop;
    const int count = cursor.read(schema::hatch::edgeCount).value;
    for (int i = 0; i < count && cursor.seek(schema::hatch::edge); ++i)
    {
        const Points part = edgePoints(cursor);
        loop.insert(loop.end(), part.begin(), part.end());
    }
    return loop;
}

std::vector<Points> readLoops(TagCursor& cursor)
{
    std::vector<Points> loops;
    cursor.seek(schema::hatch::loopCount);
    const int count = cursor.read(schema::hatch::loopCount).value;
    for (int i = 0; i < count && cursor.seek(schema::hatch::loop); ++i)
    {
        const int flags = cursor.read(schema::hatch::loop).flags;
        const bool isPolyline = (flags & schema::hatch::polylineFlag) != 0;
        loops.push_back(isPolyline ? polylineLoop(cursor) : edgeLoop(cursor));
    }
    return loops;
}

// Returns the places where the line through `base` crosses the loops, as sorted distances along the
// line.
std::vector<double> crossings(const std::vector<Points>& loops, const AcGePoint3d& base,
                              const AcGeVector3d& along)
{
    const AcGeVector3d across(-along.y, along.x, 0);
    std::vector<double> places;
    for (const Points& loop : loops)
    {
        for (std::size_t i = 0; i < loop.size(); ++i)
        {
            const AcGeVector3d a = loop[i] - base;
            const AcGeVector3d b = loop[(i + 1) % loop.size()] - base;
            const double sideA = a.dotProduct(across), sideB = b.dotProduct(across);
            if ((sideA > 0) != (sideB > 0))
            {
                places.push_back((a + (b - a) * (sideA / (sideA - sideB))).dotProduct(along));
            }
        }
    }
    std::ranges::sort(places);
    return places;
}

// Draws the lines of a family as solid strokes, because the gaps of dashed patterns are too fine
// for a plot of the whole drawing.
void drawFamily(const std::vector<Points>& loops, const schema::hatch::PatternLine& family,
                const Pen& pen)
{
    const int mostLines = 2000;
    const AcGePoint3d first(family.baseX, family.baseY, 0);
    const AcGeVector3d offset(family.offsetX, family.offsetY, 0);
    const double angle = toRadians(family.angle);
    const AcGeVector3d along(std::cos(angle), std::sin(angle), 0);
    const AcGeVector3d across(-along.y, along.x, 0);
    const double spacing = offset.dotProduct(across);
    double low = INFINITY, high = -INFINITY;
    for (const Points& loop : loops)
    {
        for (const AcGePoint3d& point : loop)
        {
            const double place = (point - first).dotProduct(across) / spacing;
            low = std::min(low, place);
            high = std::max(high, place);
        }
    }
    if (!(high - low <= mostLines))
    {
        pen.area(loops);  // lines this dense look like a filled area
        return;
    }
    for (int i = 0; i <= int(high - low); ++i)
    {
        const AcGePoint3d base = first + offset * (std::ceil(low) + i);
        const std::vector<double> places = crossings(loops, base, along);
        for (std::size_t k = 0; k + 1 < places.size(); k += 2)
        {
            pen.path({base + along * places[k], base + along * places[k + 1]});
        }
    }
}
}  // namespace

void drawHatch(const EntityTags& entity, const Pen& pen)
{
    const schema::hatch::Hatch hatch = entity.read(schema::hatch::table);
    TagCursor cursor(entity);
    const std::vector<Points> loops = readLoops(cursor);
    const AcGeVector3d elevation(0, 0, hatch.elevation.z);
    const Pen plane = pen.withinPlane(hatch.normal).within(AcGeMatrix3d::translation(elevation));
    if (hatch.isSolid != 0)
    {
        plane.area(loops);
        return;
    }
    cursor.seek(schema::hatch::patternLineCount);
    const int count = cursor.read(schema::hatch::patternLineCount).value;
    for (int i = 0; i < count && cursor.seek(schema::hatch::patternLine); ++i)
    {
        drawFamily(loops, cursor.read(schema::hatch::patternLine), plane);
    }
}
}  // namespace host::plot
