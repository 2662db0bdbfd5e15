#include "engine/positions.h"

#include <cmath>

#include "output/tolerance.h"

namespace
{
bool fitsInt(double value)
{
    return std::fabs(value) < 2147483648.0;
}
}  // namespace

std::vector<double> linePositions(double low, double high, double base, double step, int limit)
{
    std::vector<double> positions;
    const double from = low - step;
    const double to = high + step;
    const double steps = (from - base) / step;
    if (!(step > 0) || !isMeasurable(from) || !isMeasurable(to) || !fitsInt(steps))
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
    const AcGePoint3d& low = request.corner1;
    const AcGePoint3d& high = request.corner2;
    const GridSettings& options = request.options;
    GridLines lines;
    lines.x = linePositions(low.x, high.x, options.basePoint.x, options.HorStep, maxNodes);
    if (!lines.x.empty())
    {
        const int left = maxNodes / static_cast<int>(lines.x.size());
        lines.y = linePositions(low.y, high.y, options.basePoint.y, options.VertStep, left);
    }
    // Without lines across there are no nodes, and millions of positions would only fill the
    // memory.
    if (lines.y.empty())
    {
        lines.x.clear();
    }
    return lines;
}
