#include "host/plot/entities.h"

#include <array>
#include <numbers>

#include "host/geometry/ocs.h"
#include "host/plot/curves.h"

namespace host::plot
{
namespace
{
void drawLine(const EntityTags& line, const Pen& pen)
{
    pen.path({line.point(10), line.point(11)});
}

void drawCircle(const EntityTags& circle, const Pen& pen)
{
    pen.withinPlane(circle.normal())
        .path(arc(circle.point(10), circle.real(40), 0, 2 * std::numbers::pi), true);
}

void drawArc(const EntityTags& curve, const Pen& pen)
{
    pen.withinPlane(curve.normal())
        .path(arc(curve.point(10), curve.real(40), curve.radians(50), curve.radians(51)));
}

// Stored in the coordinates around it, unlike circles and arcs.
void drawEllipse(const EntityTags& curve, const Pen& pen)
{
    const AcGeVector3d major = curve.point(11).asVector();
    const AcGeVector3d minor = Ocs(curve.normal()).normal().crossProduct(major) * curve.real(40, 1);
    pen.path(ellipse(curve.point(10), major, minor, curve.real(41),
                     curve.real(42, 2 * std::numbers::pi)));
}

void drawPoint(const EntityTags& point, const Pen& pen)
{
    pen.dot(point.point(10));
}

// The last two corners stand in the order of a zigzag.
void drawSolid(const EntityTags& solid, const Pen& pen)
{
    Points corners{solid.point(10), solid.point(11), solid.point(12)};
    if (solid.has(13))
    {
        corners.insert(corners.begin() + 2, solid.point(13));
    }
    pen.withinPlane(solid.normal()).area({corners});
}

void drawFace(const EntityTags& face, const Pen& pen)
{
    const std::array corners{face.point(10), face.point(11), face.point(12),
                             face.has(13) ? face.point(13) : face.point(12)};
    const int hidden = face.integer(70);
    for (std::size_t i = 0; i < corners.size(); ++i)
    {
        if ((hidden >> i & 1) == 0)
        {
            pen.path({corners[i], corners[(i + 1) % corners.size()]});
        }
    }
}

std::vector<double> reals(const EntityTags& entity, int code)
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
        bspline(spline.integer(71), reals(spline, 40), spline.points(10), reals(spline, 41));
    pen.path(curve.empty() ? spline.points(11) : curve);
}

void drawXline(const EntityTags& line, const Pen& pen)
{
    pen.ray(line.point(10), line.point(11).asVector(), true);
}

void drawRay(const EntityTags& line, const Pen& pen)
{
    pen.ray(line.point(10), line.point(11).asVector(), false);
}

void drawLeader(const EntityTags& leader, const Pen& pen)
{
    pen.path(leader.points(10));
}

// Each vertex tells how far along its miter each element lies.
void drawMultiline(const EntityTags& multiline, const Pen& pen)
{
    const Points vertices = multiline.points(11);
    const Points miters = multiline.points(13);
    std::vector<Points> elements;
    std::size_t vertex = 0, element = 0;
    bool distanceNext = false;
    for (const dxf::Tag& tag : multiline.all())
    {
        if (tag.code == 11)
        {
            ++vertex;
            element = 0;
        }
        distanceNext |= tag.code == 74;
        if (tag.code != 41 || !distanceNext || vertex == 0 || vertex > miters.size())
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
        pen.path(line, (multiline.integer(71) & 2) != 0);
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
