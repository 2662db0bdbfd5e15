// Finds where straight pieces meet in space. All pieces of a call are in one coordinate system.
#pragma once

#include <optional>
#include <vector>

#include "gepnt3d.h"

namespace host
{
// A segment, or, when extended, the infinite line through its ends.
struct StraightPiece
{
    AcGePoint3d start;
    AcGePoint3d end;
    bool extended = false;
};

// A point where the asking piece meets another piece.
struct Crossing
{
    double parameter;   // along the asking piece: 0 at its start, 1 at its end
    AcGePoint3d point;  // in the system of the pieces
    double tolerance;   // the largest possible error of the point, drawing units
};

// Finds where `asking` meets `other`. The ends are part of the pieces. Returns no value when the
// pieces pass each other in space, are parallel or overlap, or when one of them is too short to
// have a direction. Pieces that come nearer than the tolerance of host/geometry/tolerance.h meet.
//
// Each coordinate is computed from the piece that changes less in it. A horizontal or vertical
// piece therefore gives its own coordinate unrounded: the crossing of a vertical grid line with a
// horizontal edge lies exactly on both.
std::optional<Crossing> crossing(const StraightPiece& asking, const StraightPiece& other);

// Sorts the crossings of one asking piece, the one nearest to its end first. Keeps one of the
// crossings that lie no further apart than their tolerance, because the corner of an outline is
// found on both of its edges.
void arrangeFarEndFirst(std::vector<Crossing>& found);
}  // namespace host
