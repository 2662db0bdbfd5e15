// Computes what a grid must look like in another way than the engine: it clips each whole line once
// by the half-planes of the outline's edges. It shares no code with the engine.
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
    // Returns the part of the infinite line within the outline, or no value when the line passes by
    // or runs along an edge.
    std::optional<Span> clip(Direction direction, double at) const;

    // Returns the distance from the nearest edge, which is negative outside.
    double depth(const Spot& spot) const;
    double distanceTo(int edge, const Spot& spot) const { return m_edges[edge].distance(spot); }

    bool isConvex() const { return m_isConvex; }
    double size() const { return m_size; }
    // Returns the smallest sine between an edge and a line that is not along it.
    double flattest() const { return m_flattest; }

private:
    struct Edge
    {
        Spot start;
        Spot inwards;  // a unit vector
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
    Picture picture;   // the labels have exact values
    double tolerance;  // the tolerance of the ends of parts and of values
};

// Returns the expectation, or no value for a case in which the tolerances of the point tests decide
// (see Clipper::isBeyond) or an edge is almost parallel to the lines.
std::optional<Expectation> expectationOf(const GridCase& asked);
}  // namespace relations
