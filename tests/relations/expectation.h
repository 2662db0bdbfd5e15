// What a grid has to look like, found in another way than the engine finds it: each whole line is
// clipped once by the half-planes of the outline's edges. Nothing here is shared with the engine.
#pragma once

#include <optional>

#include "tests/relations/picture.h"

namespace relations
{
// A convex outline seen from the base point.
class ConvexOutline
{
public:
    explicit ConvexOutline(const GridCase& asked);

    struct Span
    {
        double low;
        double high;
    };
    // Part of the endless line within; none when it passes by or runs along an edge.
    std::optional<Span> clip(Direction direction, double at) const;

    // From the nearest edge, to the inside; negative outside.
    double depth(const Spot& spot) const;
    double distanceTo(int edge, const Spot& spot) const { return m_edges[edge].distance(spot); }

    bool isConvex() const { return m_isConvex; }
    double size() const { return m_size; }
    // Smallest sine between an edge and a line that is not along it.
    double flattest() const { return m_flattest; }

private:
    struct Edge
    {
        Spot start;
        Spot inwards;  // of length 1
        double distance(const Spot& spot) const
        {
            return (spot.x - start.x) * inwards.x + (spot.y - start.y) * inwards.y;
        }
    };

    std::array<Edge, 4> m_edges;
    bool m_isConvex = true;
    double m_size = 0;
    double m_flattest = 1;
};

struct Expectation
{
    Picture picture;   // labels with exact values
    double tolerance;  // of the ends of parts and of values
};

// None for a case in which the tolerances of the point tests decide, see Clipper::isBeyond, or an
// edge is all but parallel to the lines.
std::optional<Expectation> expectationOf(const GridCase& asked);
}  // namespace relations
