// Converts curves to chains of chords that are fine enough for paper. All points share one
// coordinate system of the caller's choice; drawing units.
#pragma once

#include <span>

#include "host/plot/sink.h"

namespace host::plot
{
// A vertex of a polyline. Widths and bulge belong to the segment that begins at the vertex. The
// bulge is the tangent of a quarter of the arc's angle, and positive for a counter-clockwise arc.
struct Vertex
{
    AcGePoint3d point;
    double bulge = 0;
    double startWidth = 0;
    double endWidth = 0;
};

// Returns an arc in the XY plane, counter-clockwise from `start` to `end` [rad]. Equal angles make
// a full circle.
Points arc(const AcGePoint3d& centre, double radius, double start, double end);

// Returns an arc of an ellipse between two parameters [rad], counter-clockwise from `major` to
// `minor`. Parameter 0 is the end of the major axis.
Points ellipse(const AcGePoint3d& centre, const AcGeVector3d& major, const AcGeVector3d& minor,
               double start, double end);

// Returns the segment from `a` to `b` without `b`.
Points segment(const Vertex& a, const AcGePoint3d& b);

// Returns the segments of a polyline. A closed polyline has one more segment, back to the first
// vertex.
Points chain(std::span<const Vertex> vertices, bool closed);

// Returns a B-spline of that degree, or no points when the numbers do not define a spline. The
// weights may be empty.
Points bspline(int degree, std::span<const double> knots, std::span<const AcGePoint3d> poles,
               std::span<const double> weights);
}  // namespace host::plot
