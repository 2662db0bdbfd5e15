#include "engine/positions.h"

#include <cmath>

#include "output/tolerance.h"

std::vector<double> linePositions(double low, double high, double base, double step, int limit)
{
    std::vector<double> positions;
    const double from = low - step;
    const double to = high + step;
    const double steps = (from - base) / step;
    if (!(step > 0) || !isMeasurable(from) || !isMeasurable(to) ||
        !(std::fabs(steps) < 2147483648.0))
    {
        return positions;
    }
    const double first = static_cast<int>(steps) * step + base;
    if (!((to - first) / step < limit))
    {
        return positions;
    }
    for (double at = first; at <= to; at += step)
    {
        if (static_cast<int>(positions.size()) == limit || !(at + step > at))
        {
            return std::vector<double>();
        }
        positions.push_back(at);
    }
    return positions;
}

GridLines gridLines(const GridRequest& request)
{
    const double steps[] = {request.options.HorStep, request.options.VertStep};
    GridLines lines;
    int limit = maxNodes;
    for (int axis = 0; axis < 2; ++axis)
    {
        lines.at[axis] = linePositions(request.corner1[axis], request.corner2[axis],
                                       request.options.basePoint[axis], steps[axis], limit);
        // Millions of positions without lines across would only fill the memory.
        if (lines.at[axis].empty())
        {
            return GridLines();
        }
        limit /= static_cast<int>(lines.at[axis].size());
    }
    return lines;
}
