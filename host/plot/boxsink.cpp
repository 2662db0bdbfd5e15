#include "host/plot/boxsink.h"

#include <array>

namespace host::plot
{
void BoxSink::path(const Points& points, bool, Color)
{
    add(points);
}

void BoxSink::area(const std::vector<Points>& loops, Color)
{
    for (const Points& loop : loops)
    {
        add(loop);
    }
}

void BoxSink::dot(const AcGePoint3d& point, Color)
{
    add({&point, 1});
}

void BoxSink::text(const TextLine& line, Color)
{
    const AcGeVector3d width = line.along * widthOf(line.text);
    const AcGePoint3d start = line.origin - width * line.across - line.up * line.above;
    add(std::array{start, start + width, start + line.up, start + width + line.up});
}
}  // namespace host::plot
