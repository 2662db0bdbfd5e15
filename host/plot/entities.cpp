#include "host/plot/entities.h"

#include <array>
#include <numbers>

#include "host/basics/angle.h"
#include "host/dxf/schema/curves.h"
#include "host/dxf/schema/hatch.h"
#include "host/dxf/schema/references.h"

#include "host/geometry/ocs.h"
#include "host/plot/curves.h"
#include "host/plot/tagcursor.h"

namespace host::plot
{
namespace
{
void drawLine(const EntityTags& entity, const Pen& pen)
{
    const schema::line::Ends line = entity.read(schema::line::ends);
    pen.path({line.start, line.end});
}

void drawCircle(const EntityTags& entity, const Pen& pen)
{
    const schema::circle::Circle circle = entity.read(schema::circle::table);
    pen.withinPlane(circle.normal)
        .path(arc(circle.centre, circle.radius, 0, 2 * std::numbers::pi), true);
}

void drawArc(const EntityTags& entity, const Pen& pen)
{
    const schema::arc::Arc curve = entity.read(schema::arc::table);
    pen.withinPlane(curve.normal)
        .path(arc(curve.centre, curve.radius, toRadians(curve.startAngle),
                  toRadians(curve.endAngle)));
}

// Draws an ellipse. Its points are stored in the coordinates of its space or block, unlike those of
// circles and arcs, which are stored in the coordinates of their plane.
void drawEllipse(const EntityTags& entity, const Pen& pen)
{
    const schema::ellipse::Ellipse curve = entity.read(schema::ellipse::table);
    const AcGeVector3d minor =
        Ocs(curve.normal).normal().crossProduct(curve.majorAxis) * curve.ratio;
    pen.path(ellipse(curve.centre, curve.majorAxis, minor, curve.start, curve.end));
}

void drawPoint(const EntityTags& entity, const Pen& pen)
{
    pen.dot(entity.read(schema::point::table).position);
}

// Draws a SOLID, whose corners are stored in zigzag order, so that the last two are swapped here.
void drawSolid(const EntityTags& entity, const Pen& pen)
{
    const schema::solid::Solid solid = entity.read(schema::solid::table);
    Points corners{solid.first, solid.second, solid.third};
    if (solid.fourth)
    {
        corners.insert(corners.begin() + 2, *solid.fourth);
    }
    pen.withinPlane(solid.normal).area({corners});
}

void drawFace(const EntityTags& entity, const Pen& pen)
{
    const schema::solid::Face face = entity.read(schema::solid::face);
    const std::array corners{face.first, face.second, face.third, face.fourth.value_or(face.third)};
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        if ((face.hiddenEdges >> i & 1) == 0)
        {
            pen.path({corners[i], corners[(i + 1) % corners.size()]});
        }
    }
}

void drawSpline(const EntityTags& entity, const Pen& pen)
{
    const schema::spline::Spline spline = entity.read(schema::spline::table);
    const Points curve = bspline(spline.degree, spline.knots, spline.poles, spline.weights);
    pen.path(curve.empty() ? spline.fitPoints : curve);
}

void drawXline(const EntityTags& entity, const Pen& pen)
{
    const schema::ray::Ray line = entity.read(schema::ray::xline);
    pen.ray(line.start, line.direction, true);
}

void drawRay(const EntityTags& entity, const Pen& pen)
{
    const schema::ray::Ray line = entity.read(schema::ray::table);
    pen.ray(line.start, line.direction, false);
}

void drawLeader(const EntityTags& entity, const Pen& pen)
{
    pen.path(entity.read(schema::leader::table).vertices);
}

// Adds the points of a vertex, whose elements follow, to the lines of a multiline.
void addVertex(const schema::multiline::Vertex& vertex, TagCursor& cursor,
               std::vector<Points>& lines)
{
    for (std::size_t i = 0; cursor.seek(schema::multiline::element, schema::multiline::vertex);)
    {
        const schema::multiline::Element element = cursor.read(schema::multiline::element);
        if (element.distance && vertex.miter)
        {
            lines.resize(std::max(lines.size(), i + 1));
            lines[i++].push_back(vertex.point + *vertex.miter * *element.distance);
        }
    }
}

void drawMultiline(const EntityTags& entity, const Pen& pen)
{
    const schema::multiline::Multiline multiline = entity.read(schema::multiline::table);
    std::vector<Points> lines;
    for (TagCursor cursor(entity); cursor.seek(schema::multiline::vertex);)
    {
        const schema::multiline::Vertex vertex = cursor.read(schema::multiline::vertex);
        addVertex(vertex, cursor, lines);
    }
    for (const Points& line : lines)
    {
        pen.path(line, (multiline.flags & schema::multiline::closedFlag) != 0);
    }
}

struct Kind
{
    std::string_view type;
    void (*draw)(const EntityTags&, const Pen&);
};

// clang-format off
const Kind kinds[] = {
    {schema::line::table.type, drawLine},
    {schema::circle::table.type, drawCircle},
    {schema::arc::table.type, drawArc},
    {schema::ellipse::table.type, drawEllipse},
    {schema::point::table.type, drawPoint},
    {schema::solid::table.type, drawSolid},
    {schema::solid::trace.type, drawSolid},
    {schema::solid::face.type, drawFace},
    {schema::spline::table.type, drawSpline},
    {schema::ray::xline.type, drawXline},
    {schema::ray::table.type, drawRay},
    {schema::leader::table.type, drawLeader},
    {schema::multiline::table.type, drawMultiline},
    {schema::lightpolyline::table.type, drawLightPolyline},
    {schema::hatch::table.type, drawHatch},
    {schema::text::table.type, drawText},
    {schema::attribute::table.type, drawAttribute},
    {schema::attribute::definition.type, drawAttributeDefinition},
    {schema::paragraphs::table.type, drawParagraphs},
};
// clang-format on
}  // namespace

bool drawEntity(const EntityTags& entity, const Pen& pen)
{
    const auto* kind = std::ranges::find(kinds, entity.type(), &Kind::type);
    if (kind == std::end(kinds))
    {
        return false;
    }
    kind->draw(entity, pen);
    return true;
}
}  // namespace host::plot
