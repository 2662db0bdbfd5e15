// Where the lines of a grid run.
#pragma once

#include <vector>

#include "engine/gridrequest.h"

// 2^25. A grid has at most this many nodes and twice as many lines. The host keeps some hundred
// bytes a line, so no machine holds the drawing of a bigger one; and its counts are ints, which
// twice this number still fits with room. Such grids come from damaged settings, not from users.
const int maxNodes = 1 << 25;

struct GridLines
{
    std::vector<double> x;  // of the vertical lines, ascending
    std::vector<double> y;  // of the horizontal lines, ascending
};

// Positions base + n * step from one step below `low` to one step above `high`, ascending.
//
// The first is found by truncation towards zero, so below the base it may lie up to a step further
// in; the widening by one step leaves [low, high] covered all the same.
// None for more than `limit` and for numbers that no row of lines can be made of: a step that is
// not positive or does not change the coordinate it is added to, not-set numbers, NaN, infinities
// and more than 2^31 steps between base and low.
std::vector<double> linePositions(double low, double high, double base, double step, int limit);

// Both directions, from corner1 to corner2 of the request, which are sorted.
// A direction without lines leaves the grid without nodes; then the other has none either.
GridLines gridLines(const GridRequest& request);
