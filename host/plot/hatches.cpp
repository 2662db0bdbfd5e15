#include <algorithm>
#include <cmath>

#include "host/basics/angle.h"
#include "host/dxf/schema/hatch.h"
#include "host/plot/curves.h"
#include "host/plot/entities.h"

namespace host::plot
{
namespace
{
// Walks through the tags of a hatch, in which the place of a code decides what it means.
class Cursor
{
public:
    explicit Cursor(const EntityTags& hatch) : m_hatch(hatch), m_tags(hatch.all()) {}

    bool atEnd() const { return m_at == m_tags.size(); }
    bool at(Code code) const { return !atEnd() && m_tags[m_at].code == code; }
    void skip() { ++m_at; }

    // Moves forward to the first tag with the code. Returns false and stays when no such tag
    // follows.
    bool seek(Code code)
    {
        const auto found = std::ranges::find(m_tags.subspan(m_at), code, &dxf::Tag::code);
        if (found == m_tags.end())
        {
            return false;
        }
        m_at = std::size_t(found - m_tags.begin());
        return true;
    }

    // Takes the value of the current tag if the tag has the code, otherwise the fallback.
    double real(Code code, double fallback = 0)
    {
        return at(code) ? m_hatch.real(m_tags[m_at++]) : fallback;
    }
    int integer(Code code, int fallback = 0)
    {
        return at(code) ? m_hatch.integer(m_tags[m_at++]) : fallback;
    }
    AcGePoint3d point(Code code)
    {
        const double x = real(code);
        return {x, real(code.y()), 0};
    }
    double radians(Code code) { return toRadians(real(code)); }

private:
    const EntityTags& m_hatch;
    std::span<const dxf::Tag> m_tags;
    std::size_t m_at = 0;
};

Points polylineLoop(Cursor& cursor)
{
    const bool bulges = cursor.integer(schema::hatch::hasBulges) != 0;
    cursor.integer(schema::hatch::isClosed);  // not needed: every loop of a hatch is closed
    const int count = cursor.integer(schema::hatch::partCount);
    std::vector<Vertex> vertices;
    for (int i = 0; i < count && cursor.at(schema::hatch::vertex); ++i)
    {
        vertices.push_back({cursor.point(schema::hatch::vertex)});
        vertices.back().bulge = bulges ? cursor.real(schema::hatch::bulge) : 0;
    }
    return chain(vertices, true);
}

// Returns an arc of an edge. The angles of a clockwise edge are measured clockwise.
Points turned(bool counterClockwise, double start, double end, const AcGePoint3d& centre,
              const AcGeVector3d& major, const AcGeVector3d& minor)
{
    if (counterClockwise)
    {
        return ellipse(centre, major, minor, start, end);
    }
    return ellipse(centre, major, -minor, start, end);
}

Points arcEdge(Cursor& cursor)
{
    const AcGePoint3d centre = cursor.point(schema::hatch::centre);
    const double radius = cursor.real(schema::hatch::radius);
    const double start = cursor.radians(schema::hatch::startAngle);
    const double end = cursor.radians(schema::hatch::endAngle);
    return turned(cursor.integer(schema::hatch::isCounterClockwise, 1) != 0, start, end, centre,
                  {radius, 0, 0}, {0, radius, 0});
}

Points ellipseEdge(Cursor& cursor)
{
    const AcGePoint3d centre = cursor.point(schema::hatch::centre);
    const AcGeVector3d major = cursor.point(schema::hatch::majorAxis).asVector();
    const double ratio = cursor.real(schema::hatch::ratio, 1);
    const double start = cursor.radians(schema::hatch::startAngle);
    const double end = cursor.radians(schema::hatch::endAngle);
    return turned(cursor.integer(schema::hatch::isCounterClockwise, 1) != 0, start, end, centre,
                  major, AcGeVector3d(-major.y, major.x, 0) * ratio);
}

Points splineEdge(Cursor& cursor)
{
    const int degree = cursor.integer(schema::hatch::degree);
    cursor.integer(
        schema::hatch::isRational);  // not needed: the weights beside the poles say the same
    cursor.integer(schema::hatch::isPeriodic);
    const int knotCount = cursor.integer(schema::hatch::knotCount);
    const int poleCount = cursor.integer(schema::hatch::poleCount);
    std::vector<double> knots, weights;
    for (int i = 0; i < knotCount && cursor.at(schema::hatch::knot); ++i)
    {
        knots.push_back(cursor.real(schema::hatch::knot));
    }
    Points poles;
    for (int i = 0; i < poleCount && cursor.at(schema::hatch::pole); ++i)
    {
        poles.push_back(cursor.point(schema::hatch::pole));
        if (cursor.at(schema::hatch::weight))
        {
            weights.push_back(cursor.real(schema::hatch::weight));
        }
    }
    return bspline(degree, knots, poles, weights);
}

Points edge(Cursor& cursor)
{
    switch (cursor.integer(schema::hatch::edgeKind))
    {
        case 1:
        {
            const AcGePoint3d start = cursor.point(schema::hatch::start);
            return {start, cursor.point(schema::hatch::end)};
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
    const int count = cursor.integer(schema::hatch::partCount);
    for (int i = 0; i < count && cursor.seek(schema::hatch::edgeKind); ++i)
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
    if (!cursor.seek(schema::hatch::loopCount))
    {
        return loops;
    }
    const int count = cursor.integer(schema::hatch::loopCount);
    for (int i = 0; i < count && cursor.seek(schema::hatch::loopFlags); ++i)
    {
        const bool polyline = (cursor.integer(schema::hatch::loopFlags) & polylineFlag) != 0;
        loops.push_back(polyline ? polylineLoop(cursor) : edgeLoop(cursor));
    }
    return loops;
}

// A family of parallel lines in a pattern.
struct PatternLine
{
    double angle;
    AcGePoint3d base;
    AcGeVector3d offset;  // from one line to the next
};

PatternLine readPatternLine(Cursor& cursor)
{
    PatternLine line{};
    line.angle = cursor.radians(schema::hatch::lineAngle);
    line.base.x = cursor.real(schema::hatch::lineBaseX);
    line.base.y = cursor.real(schema::hatch::lineBaseY);
    line.offset.x = cursor.real(schema::hatch::lineOffsetX);
    line.offset.y = cursor.real(schema::hatch::lineOffsetY);
    return line;
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
        pen.area(loops);  // lines this dense look like a filled area
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
    const double elevation = hatch.point(schema::hatch::elevation).z;
    const Pen plane =
        pen.withinPlane(hatch.normal()).within(AcGeMatrix3d::translation({0, 0, elevation}));
    if (hatch.integer(schema::hatch::isSolid) != 0)
    {
        plane.area(loops);
        return;
    }
    const int count = cursor.seek(schema::hatch::patternLineCount)
                          ? cursor.integer(schema::hatch::patternLineCount)
                          : 0;
    for (int i = 0; i < count && cursor.seek(schema::hatch::lineAngle); ++i)
    {
        drawFamily(loops, readPatternLine(cursor), plane);
    }
}
}  // namespace host::plot
