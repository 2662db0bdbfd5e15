// Where straight pieces meet in space. All pieces of a call are in one system.
#pragma once

#include <optional>
#include <vector>

#include "gepnt3d.h"

namespace host
{
// A segment, or the endless line through its ends when extended.
struct StraightPiece
{
    AcGePoint3d start;
    AcGePoint3d end;
    bool extended = false;
};

// A point where the asking piece meets another one.
struct Crossing
{
    double parameter;   // along the asking piece: 0 at its start, 1 at its end
    AcGePoint3d point;  // in the system of the pieces
    double tolerance;   // how far the point may be off, drawing units
};

// Finds where asking meets other; the ends belong to the pieces. No value when the pieces pass each
// other in space, run parallel or overlap, or when one of them is too short to have a direction.
// Pieces that come nearer than the tolerance of host/geometry/tolerance.h meet.
//
// Each coordinate is taken from the piece that moves less in it. So a level or upright piece gives
// its own coordinate unrounded: the crossing of an upright grid line with a level edge lies exactly
// on both.
std::optional<Crossing> crossing(const StraightPiece& asking, const StraightPiece& other);

// Sorts the crossings of one asking piece, the one nearest to its end first. Of crossings that lie
// no further apart than their tolerance it keeps one, because the corner of an outline is found on
// both of its edges.
void arrangeFarEndFirst(std::vector<Crossing>& found);
}  // namespace host
