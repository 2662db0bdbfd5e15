// Computes where the lines of a grid run.
#pragma once

#include <vector>

#include "engine/gridrequest.h"

// A grid has at most 2^25 nodes, and each node has two lines in the drawing. The host keeps some
// hundred bytes for each line, so no machine can hold a larger grid. The host counts with ints;
// twice this number is still well below the largest int. Larger grids come from damaged settings,
// not from users.
const int maxNodes = 1 << 25;

// The positions of the lines of a grid, in drawing units.
struct GridLines
{
    std::vector<double> at[2];  // x of the vertical lines and y of the horizontal ones, ascending
};

// Returns the positions base + n * step from one step below `low` to one step above `high`, in
// ascending order and drawing units.
//
// The first position is found by truncation towards zero, so below the base it may lie up to one
// step further in. The range is wider by one step, so the positions still cover [low, high].
//
// The result is empty when there would be more than `limit` positions and when the numbers cannot
// make a row of lines: a step that is not positive or does not change the coordinate to which it is
// added, a number that is not set, NaN or infinite, and more than 2^31 steps between base and low.
std::vector<double> linePositions(double low, double high, double base, double step, int limit);

// Returns the lines of both directions, from corner1 to corner2 of the request, which are sorted.
// If one direction has no lines, the grid has no nodes, and the other direction is left empty too.
GridLines gridLines(const GridRequest& request);
