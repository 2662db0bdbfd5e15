#include "host/plot/measure.h"

#include "host/database/textwidth.h"
#include "host/plot/scene.h"

namespace host::plot
{
namespace
{
class Measure : public Sink
{
public:
    WorldExtents extents;

    void path(const Points& points, bool, Color) override
    {
        for (const AcGePoint3d& point : points)
        {
            extents.add(point);
        }
    }
    void area(const std::vector<Points>& loops, Color color) override
    {
        for (const Points& loop : loops)
        {
            path(loop, true, color);
        }
    }
    void dot(const AcGePoint3d& point, Color) override { extents.add(point); }
    void ray(const AcGePoint3d&, const AcGeVector3d&, bool, Color) override {}
    void text(const TextLine& line, Color) override
    {
        const AcGeVector3d width = line.along * (estimatedWidth(line.text.size()));
        const AcGePoint3d start = line.origin - width * line.across - line.up * line.above;
        path({start, start + width, start + line.up, start + width + line.up}, false, {});
    }
};
}  // namespace

dxf::Measured entityExtents(const dxf::TagFile& file)
{
    Measure measure;
    Scene scene(file);
    scene.draw(measure);
    return {measure.extents, scene.leftOut().empty()};
}
}  // namespace host::plot
