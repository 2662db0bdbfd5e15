#include "host/plot/entities.h"

#include <array>
#include <numbers>

#include "host/dxf/schema/curves.h"
#include "host/dxf/schema/entities.h"

#include "host/geometry/ocs.h"
#include "host/plot/curves.h"

namespace host::plot
{
namespace
{
void drawLine(const EntityTags& line, const Pen& pen)
{
    pen.path({line.point(schema::line::start), line.point(schema::line::end)});
}

void drawCircle(const EntityTags& circle, const Pen& pen)
{
    pen.withinPlane(circle.normal())
        .path(arc(circle.point(schema::circle::centre), circle.real(schema::circle::radius), 0,
                  2 * std::numbers::pi),
              true);
}

void drawArc(const EntityTags& curve, const Pen& pen)
{
    pen.withinPlane(curve.normal())
        .path(arc(curve.point(schema::circle::centre), curve.real(schema::circle::radius),
                  curve.radians(schema::circle::startAngle),
                  curve.radians(schema::circle::endAngle)));
}

// Draws an ellipse. Its points are stored in the coordinates of its space or block, unlike those of
// circles and arcs, which are stored in the coordinates of their plane.
void drawEllipse(const EntityTags& curve, const Pen& pen)
{
    const AcGeVector3d major = curve.point(schema::ellipse::majorAxis).asVector();
    const AcGeVector3d minor =
        Ocs(curve.normal()).normal().crossProduct(major) * curve.real(schema::ellipse::ratio, 1);
    pen.path(ellipse(curve.point(schema::ellipse::centre), major, minor,
                     curve.real(schema::ellipse::start),
                     curve.real(schema::ellipse::end, 2 * std::numbers::pi)));
}

void drawPoint(const EntityTags& point, const Pen& pen)
{
    pen.dot(point.point(schema::point::position));
}

// Draws a SOLID, whose corners are stored in zigzag order, so that the last two are swapped here.
void drawSolid(const EntityTags& solid, const Pen& pen)
{
    Points corners{solid.point(schema::solid::corners[0]), solid.point(schema::solid::corners[1]),
                   solid.point(schema::solid::corners[2])};
    if (solid.has(schema::solid::corners[3]))
    {
        corners.insert(corners.begin() + 2, solid.point(schema::solid::corners[3]));
    }
    pen.withinPlane(solid.normal()).area({corners});
}

void drawFace(const EntityTags& face, const Pen& pen)
{
    const std::array corners{
        face.point(schema::solid::corners[0]), face.point(schema::solid::corners[1]),
        face.point(schema::solid::corners[2]),
        face.has(schema::solid::corners[3]) ? face.point(schema::solid::corners[3])
                                            : face.point(schema::solid::corners[2])};
    const int hidden = face.integer(schema::solid::hiddenEdges);
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        if ((hidden >> i & 1) == 0)
        {
            pen.path({corners[i], corners[(i + 1) % corners.size()]});
        }
    }
}

std::vector<double> reals(const EntityTags& entity, Code code)
{
    std::vector<double> values;
    for (const dxf::Tag& tag : entity.all())
    {
        if (tag.code == code)
        {
            values.push_back(entity.real(tag));
        }
    }
    return values;
}

void drawSpline(const EntityTags& spline, const Pen& pen)
{
    const Points curve =
        bspline(spline.integer(schema::spline::degree), reals(spline, schema::spline::knot),
                spline.points(schema::spline::pole), reals(spline, schema::spline::weight));
    pen.path(curve.empty() ? spline.points(schema::spline::fitPoint) : curve);
}

void drawXline(const EntityTags& line, const Pen& pen)
{
    pen.ray(line.point(schema::ray::start), line.point(schema::ray::direction).asVector(), true);
}

void drawRay(const EntityTags& line, const Pen& pen)
{
    pen.ray(line.point(schema::ray::start), line.point(schema::ray::direction).asVector(), false);
}

void drawLeader(const EntityTags& leader, const Pen& pen)
{
    pen.path(leader.points(schema::leader::vertex));
}

// Draws an MLINE. Each vertex states the distance along its miter to each element.
void drawMultiline(const EntityTags& multiline, const Pen& pen)
{
    const Points vertices = multiline.points(schema::multiline::vertex);
    const Points miters = multiline.points(schema::multiline::miter);
    std::vector<Points> elements;
    std::size_t vertex = 0, element = 0;
    bool distanceNext = false;
    for (const dxf::Tag& tag : multiline.all())
    {
        if (tag.code == schema::multiline::vertex)
        {
            ++vertex;
            element = 0;
        }
        distanceNext |= tag.code == schema::multiline::parameterCount;
        if (tag.code != schema::multiline::parameter || !distanceNext || vertex == 0 ||
            vertex > miters.size())
        {
            continue;
        }
        distanceNext = false;
        if (element == elements.size())
        {
            elements.emplace_back();
        }
        elements[element++].push_back(vertices[vertex - 1] +
                                      miters[vertex - 1].asVector() * multiline.real(tag));
    }
    for (const Points& line : elements)
    {
        pen.path(line, (multiline.integer(schema::multiline::flags) & 2) != 0);
    }
}

struct Kind
{
    std::string_view type;
    void (*draw)(const EntityTags&, const Pen&);
};

const Kind kinds[] = {
    {"LINE", drawLine},       {"CIRCLE", drawCircle},
    {"ARC", drawArc},         {"ELLIPSE", drawEllipse},
    {"POINT", drawPoint},     {"SOLID", drawSolid},
    {"TRACE", drawSolid},     {"3DFACE", drawFace},
    {"SPLINE", drawSpline},   {"XLINE", drawXline},
    {"RAY", drawRay},         {"LEADER", drawLeader},
    {"MLINE", drawMultiline}, {"LWPOLYLINE", drawLightPolyline},
    {"HATCH", drawHatch},
};

struct TextKind
{
    std::string_view type;
    void (*draw)(const EntityTags&, const dxf::CodePage&, const Pen&);
};

const TextKind textKinds[] = {
    {"TEXT", drawText},
    {"ATTRIB", drawText},
    {"ATTDEF", drawAttributeDefinition},
    {"MTEXT", drawParagraphs},
};
}  // namespace

bool drawEntity(const EntityTags& entity, const dxf::CodePage& codePage, const Pen& pen)
{
    for (const Kind& kind : kinds)
    {
        if (kind.type == entity.type())
        {
            kind.draw(entity, pen);
            return true;
        }
    }
    for (const TextKind& kind : textKinds)
    {
        if (kind.type == entity.type())
        {
            kind.draw(entity, codePage, pen);
            return true;
        }
    }
    return false;
}
}  // namespace host::plot
