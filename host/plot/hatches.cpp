#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/plot/curves.h"
#include "host/plot/entities.h"

namespace host::plot
{
namespace
{
// Walks the tags of a hatch, where codes mean something else in each place.
class Cursor
{
public:
    explicit Cursor(const EntityTags& hatch) : m_hatch(hatch), m_tags(hatch.all()) {}

    bool atEnd() const { return m_at == m_tags.size(); }
    bool at(int code) const { return !atEnd() && m_tags[m_at].code == code; }
    void skip() { ++m_at; }

    // Goes on to the first tag with the code; false, and stays, when there is none.
    bool seek(int code)
    {
        const auto found = std::ranges::find(m_tags.subspan(m_at), code, &dxf::Tag::code);
        if (found == m_tags.end())
        {
            return false;
        }
        m_at = std::size_t(found - m_tags.begin());
        return true;
    }

    // Takes the tag if it has the code.
    double real(int code, double fallback = 0)
    {
        return at(code) ? m_hatch.real(m_tags[m_at++]) : fallback;
    }
    int integer(int code, int fallback = 0)
    {
        return at(code) ? m_hatch.integer(m_tags[m_at++]) : fallback;
    }
    AcGePoint3d point(int code)
    {
        const double x = real(code);
        return {x, real(code + 10), 0};
    }
    double radians(int code) { return real(code) * std::numbers::pi / 180; }

private:
    const EntityTags& m_hatch;
    std::span<const dxf::Tag> m_tags;
    std::size_t m_at = 0;
};

Points polylineLoop(Cursor& cursor)
{
    const bool bulges = cursor.integer(72) != 0;
    cursor.integer(73);  // closed: a hatch has no others
    const int count = cursor.integer(93);
    std::vector<Vertex> vertices;
    for (int i = 0; i < count && cursor.at(10); ++i)
    {
        vertices.push_back({cursor.point(10)});
        vertices.back().bulge = bulges ? cursor.real(42) : 0;
    }
    return chain(vertices, true);
}

// An edge that turns clockwise has its angles measured that way as well.
Points turned(bool counterClockwise, double start, double end, const AcGePoint3d& center,
              const AcGeVector3d& major, const AcGeVector3d& minor)
{
    if (counterClockwise)
    {
        return ellipse(center, major, minor, start, end);
    }
    return ellipse(center, major, -minor, start, end);
}

Points arcEdge(Cursor& cursor)
{
    const AcGePoint3d center = cursor.point(10);
    const double radius = cursor.real(40);
    const double start = cursor.radians(50);
    const double end = cursor.radians(51);
    return turned(cursor.integer(73, 1) != 0, start, end, center, {radius, 0, 0}, {0, radius, 0});
}

Points ellipseEdge(Cursor& cursor)
{
    const AcGePoint3d center = cursor.point(10);
    const AcGeVector3d major = cursor.point(11).asVector();
    const double ratio = cursor.real(40, 1);
    const double start = cursor.radians(50);
    const double end = cursor.radians(51);
    return turned(cursor.integer(73, 1) != 0, start, end, center, major,
                  AcGeVector3d(-major.y, major.x, 0) * ratio);
}

Points splineEdge(Cursor& cursor)
{
    const int degree = cursor.integer(94);
    cursor.integer(73);  // rational: tells that weights stand beside the poles
    cursor.integer(74);
    const int knotCount = cursor.integer(95);
    const int poleCount = cursor.integer(96);
    std::vector<double> knots, weights;
    for (int i = 0; i < knotCount && cursor.at(40); ++i)
    {
        knots.push_back(cursor.real(40));
    }
    Points poles;
    for (int i = 0; i < poleCount && cursor.at(10); ++i)
    {
        poles.push_back(cursor.point(10));
        if (cursor.at(42))
        {
            weights.push_back(cursor.real(42));
        }
    }
    return bspline(degree, knots, poles, weights);
}

Points edge(Cursor& cursor)
{
    switch (cursor.integer(72))
    {
        case 1:
        {
            const AcGePoint3d start = cursor.point(10);
            return {start, cursor.point(11)};
        }
        case 2:
            return arcEdge(cursor);
        case 3:
            return ellipseEdge(cursor);
        case 4:
            return splineEdge(cursor);
        default:
            return {};
    }
}

Points edgeLoop(Cursor& cursor)
{
    Points loop;
    const int count = cursor.integer(93);
    for (int i = 0; i < count && cursor.seek(72); ++i)
    {
        const Points part = edge(cursor);
        loop.insert(loop.end(), part.begin(), part.end());
    }
    return loop;
}

std::vector<Points> readLoops(Cursor& cursor)
{
    const int polylineFlag = 2;
    std::vector<Points> loops;
    if (!cursor.seek(91))
    {
        return loops;
    }
    const int count = cursor.integer(91);
    for (int i = 0; i < count && cursor.seek(92); ++i)
    {
        const bool polyline = (cursor.integer(92) & polylineFlag) != 0;
        loops.push_back(polyline ? polylineLoop(cursor) : edgeLoop(cursor));
    }
    return loops;
}

// A family of parallel lines.
struct PatternLine
{
    double angle;
    AcGePoint3d base;
    AcGeVector3d offset;  // from one line to the next
};

PatternLine readPatternLine(Cursor& cursor)
{
    PatternLine line{};
    line.angle = cursor.radians(53);
    line.base.x = cursor.real(43);
    line.base.y = cursor.real(44);
    line.offset.x = cursor.real(45);
    line.offset.y = cursor.real(46);
    return line;
}

// Where the line through `base` crosses the loops, as distances along it, in order.
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

// Solid strokes: the gaps of dashed patterns are too fine for a plot of the whole drawing.
void drawFamily(const std::vector<Points>& loops, const PatternLine& line, const Pen& pen)
{
    const int mostLines = 2000;
    const AcGeVector3d along(std::cos(line.angle), std::sin(line.angle), 0);
    const AcGeVector3d across(-along.y, along.x, 0);
    const double spacing = line.offset.dotProduct(across);
    double low = INFINITY, high = -INFINITY;
    for (const Points& loop : loops)
    {
        for (const AcGePoint3d& point : loop)
        {
            const double place = (point - line.base).dotProduct(across) / spacing;
            low = std::min(low, place);
            high = std::max(high, place);
        }
    }
    if (!(high - low <= mostLines))
    {
        pen.area(loops);  // too fine to be told from it
        return;
    }
    for (int i = 0; i <= int(high - low); ++i)
    {
        const AcGePoint3d base = line.base + line.offset * (std::ceil(low) + i);
        const std::vector<double> places = crossings(loops, base, along);
        for (std::size_t k = 0; k + 1 < places.size(); k += 2)
        {
            pen.path({base + along * places[k], base + along * places[k + 1]});
        }
    }
}
}  // namespace

void drawHatch(const EntityTags& hatch, const Pen& pen)
{
    Cursor cursor(hatch);
    std::vector<Points> loops = readLoops(cursor);
    const double elevation = hatch.point(10).z;
    const Pen plane =
        pen.withinPlane(hatch.normal()).within(AcGeMatrix3d::translation({0, 0, elevation}));
    if (hatch.integer(70) != 0)
    {
        plane.area(loops);
        return;
    }
    const int count = cursor.seek(78) ? cursor.integer(78) : 0;
    for (int i = 0; i < count && cursor.seek(53); ++i)
    {
        drawFamily(loops, readPatternLine(cursor), plane);
    }
}
}  // namespace host::plot
