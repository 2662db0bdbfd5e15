#include "tests/relations/expectation.h"

#include <algorithm>
#include <cmath>

namespace relations
{
namespace
{
// A line whose angle to an edge has a smaller sine is along the edge: a turned frame is exact to
// 1e-15.
const double parallelSine = 1e-9;

double crossProduct(const Spot& origin, const Spot& a, const Spot& b)
{
    return (a.x - origin.x) * (b.y - origin.y) - (a.y - origin.y) * (b.x - origin.x);
}

// Returns a point on the line.
Spot spotOn(Direction direction, double at, double along)
{
    return direction == vertical ? Spot{at, along} : Spot{along, at};
}

struct Doubt
{
};

class Clipper
{
public:
    explicit Clipper(const GridCase& asked)
        : m_asked(asked), m_outline(asked), m_unit(0x1p-52 * largestNumber(asked))
    {
    }

    Expectation expect() const;

private:
    bool isInside(const Spot& spot) const { return isBeyond(m_outline.depth(spot)); }
    bool isBeyond(double depth) const;
    std::vector<Part> partsOf(Direction direction, double at) const;
    bool isLabelled(Direction direction, bool atHighEnd, const Spot& end) const;
    bool isWantedAlongWorld(const std::array<bool, 4>& wanted, const Spot& end) const;
    int nameOfEdge(int edge) const;

    const GridCase& m_asked;
    const ConvexOutline m_outline;
    const double m_unit;  // the unit in the last place of the largest coordinate
};

// Tells whether a point counts as inside. Coordinates have an error of 16 units, or 1e-10 where
// that is larger, and a point closer to an edge lies on it. The point tests themselves are coarser:
// the sum of the angles to the corners may lack 1e-6, which includes points up to a few 1e-7 of the
// outline's size outside it, and the area of a curve has an error of 1e-6. Between these limits
// nothing is promised.
bool Clipper::isBeyond(double depth) const
{
    const double tolerance = std::max(1e-10, 16 * m_unit);
    const double coarsest = std::max(4 * tolerance, 2e-6 * std::max(1.0, m_outline.size()));
    if (std::abs(depth) > tolerance && std::abs(depth) < coarsest)
    {
        throw Doubt();
    }
    return depth > tolerance;
}

// Returns the parts of a line. A part is one step of a line, or a bar, around a node. It is drawn
// where an end or, along the world's axes, the node is inside. An outline that enters only between
// them, mostly with a corner, is not noticed.
std::vector<Part> Clipper::partsOf(Direction direction, double at) const
{
    std::vector<Part> parts;
    const auto span = m_outline.clip(direction, at);
    if (!span)
    {
        return parts;
    }
    const double step = m_asked.steps[1 - direction];
    const double half = m_asked.crossSize.value_or(step) / 2;
    const auto inside = [&](double along) { return isInside(spotOn(direction, at, along)); };
    const double last = std::ceil(span->high / step) + 1;
    for (double n = std::floor(span->low / step) - 1; n <= last; ++n)
    {
        const Part part = {n * step - half, n * step + half};
        const bool startIsInside = inside(part.low);
        const bool endIsInside = inside(part.high);
        if (startIsInside || endIsInside || (!m_asked.alongUcs && inside(n * step)))
        {
            parts.push_back({startIsInside ? part.low : std::max(part.low, span->low),
                             endIsInside ? part.high : std::min(part.high, span->high)});
        }
    }
    return parts;
}

// Returns the index of top, bottom, left or right, as seen in the UCS.
int Clipper::nameOfEdge(int edge) const
{
    const auto& corners = m_asked.outline;
    const AcGePoint3d& start = corners[static_cast<unsigned>(edge)];
    const AcGePoint3d& end = corners[static_cast<unsigned>((edge + 1) % 4)];
    const AcGeMatrix3d& ucs = m_asked.ucs;
    const AcGeVector3d x(ucs.entry[0][0], ucs.entry[1][0], ucs.entry[2][0]);
    const AcGeVector3d y(ucs.entry[0][1], ucs.entry[1][1], ucs.entry[2][1]);
    const AcGeVector3d outwards = (start - corners[0]) + (end - corners[2]);
    const bool isAcross =
        std::abs((end - start).dotProduct(x)) > std::abs((end - start).dotProduct(y));
    return isAcross ? (outwards.dotProduct(y) > 0 ? 0 : 1) : (outwards.dotProduct(x) < 0 ? 2 : 3);
}

bool Clipper::isWantedAlongWorld(const std::array<bool, 4>& wanted, const Spot& end) const
{
    bool isWanted = false;
    for (int edge = 0; edge < 4; ++edge)
    {
        const bool isOnEdge = !isBeyond(m_outline.distanceTo(edge, end));
        isWanted = isWanted || (isOnEdge && wanted[static_cast<unsigned>(nameOfEdge(edge))]);
    }
    return isWanted;
}

// Along the UCS the ends have fixed names, and only two of the four edges are considered.
bool Clipper::isLabelled(Direction direction, bool atHighEnd, const Spot& end) const
{
    const auto& wanted = direction == vertical ? m_asked.xEdges : m_asked.yEdges;
    if (!m_asked.alongUcs)
    {
        return isWantedAlongWorld(wanted, end);
    }
    return direction == vertical ? wanted[atHighEnd ? 0 : 1] : wanted[atHighEnd ? 3 : 2];
}

Expectation Clipper::expect() const
{
    if (!m_outline.isConvex() || m_outline.flattest() < 1e-3)
    {
        throw Doubt();
    }
    // The crossing of a line and an edge has the rounding error of both, divided by the sine of the
    // angle between them.
    Expectation expected = {{}, 1e-13 + 64 * m_unit / m_outline.flattest()};
    for (const Direction direction : {vertical, horizontal})
    {
        const double step = m_asked.steps[direction];
        const auto last = static_cast<long long>(2 + 4 * m_outline.size() / step);
        for (long long index = -last; index <= last; ++index)
        {
            const double at = static_cast<double>(index) * step;
            const std::vector<Part> parts = partsOf(direction, at);
            if (parts.empty())
            {
                continue;
            }
            expected.picture.lines[{direction, index}] = parts;
            const auto span = m_outline.clip(direction, at);
            for (const bool atHighEnd : {false, true})
            {
                const Spot end = spotOn(direction, at, atHighEnd ? span->high : span->low);
                if (isLabelled(direction, atHighEnd, end))
                {
                    expected.picture.labels[{direction, index, atHighEnd}] = at;
                }
            }
        }
    }
    return expected;
}
}  // namespace

ConvexOutline::ConvexOutline(const GridCase& asked)
{
    std::array<Spot, 4> corners;
    std::ranges::transform(asked.outline, corners.begin(),
                           [&](const AcGePoint3d& corner) { return seenFromBase(asked, corner); });
    const double turn = crossProduct(corners[0], corners[1], corners[2]) < 0 ? -1 : 1;
    for (unsigned i = 0; i < 4; ++i)
    {
        const Spot& start = corners[i];
        const Spot& end = corners[(i + 1) % 4];
        const double length = std::hypot(end.x - start.x, end.y - start.y);
        m_edges[i] = {start,
                      {-turn * (end.y - start.y) / length, turn * (end.x - start.x) / length}};
        m_isConvex = m_isConvex && turn * crossProduct(start, end, corners[(i + 2) % 4]) > 0;
        m_size = std::max({m_size, length, std::abs(start.x), std::abs(start.y)});
        for (const double sine : {std::abs(m_edges[i].inwards.x), std::abs(m_edges[i].inwards.y)})
        {
            m_flattest = sine > parallelSine ? std::min(m_flattest, sine) : m_flattest;
        }
    }
}

std::optional<ConvexOutline::Span> ConvexOutline::clip(Direction direction, double at) const
{
    Span span = {-1e300, 1e300};
    for (const Edge& edge : m_edges)
    {
        const double deeper = edge.inwards.along(direction);
        const double distance = edge.distance(spotOn(direction, at, 0));
        if (std::abs(deeper) <= parallelSine)
        {
            span.high = distance <= 0 ? span.low : span.high;
            continue;
        }
        double& end = deeper > 0 ? span.low : span.high;
        end = deeper > 0 ? std::max(end, -distance / deeper) : std::min(end, -distance / deeper);
    }
    return span.low < span.high ? std::optional(span) : std::nullopt;
}

double ConvexOutline::depth(const Spot& spot) const
{
    return std::min({m_edges[0].distance(spot), m_edges[1].distance(spot),
                     m_edges[2].distance(spot), m_edges[3].distance(spot)});
}

std::optional<Expectation> expectationOf(const GridCase& asked)
{
    try
    {
        return Clipper(asked).expect();
    }
    catch (const Doubt&)
    {
        return std::nullopt;
    }
}
}  // namespace relations
