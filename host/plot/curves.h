// Curves as chains of chords, fine enough for paper.
#pragma once

#include <span>

#include "host/plot/sink.h"

namespace host::plot
{
// A vertex of a polyline. Widths and bulge are those of the segment that begins here; the bulge is
// the tangent of a quarter of the arc's angle, positive when it turns counter-clockwise.
struct Vertex
{
    AcGePoint3d point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
};

// Counter-clockwise in the XY plane from one angle to the other [rad].
Points arc(const AcGePoint3d& centre, double radius, double start, double end);

// The same for an ellipse and the parameters of its ends: 0 is where the major axis ends.
Points ellipse(const AcGePoint3d& centre, const AcGeVector3d& major, const AcGeVector3d& minor,
               double start, double end);

// The segment from `a` to `b` without `b`.
Points segment(const Vertex& a, const AcGePoint3d& b);

// With one more segment, back to the first vertex, when closed.
Points chain(std::span<const Vertex> vertices, bool closed);

// A B-spline of that degree; empty when the numbers make none. Weights may be left out.
Points bspline(int degree, std::span<const double> knots, std::span<const AcGePoint3d> poles,
               std::span<const double> weights);
}  // namespace host::plot
