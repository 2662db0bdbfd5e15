#include "host/plot/measure.h"

#include "host/database/textwidth.h"
#include "host/plot/boxsink.h"
#include "host/plot/scene.h"

namespace host::plot
{
namespace
{
class Measure : public BoxSink
{
public:
    const WorldExtents& extents() const { return m_extents; }

    void ray(const AcGePoint3d&, const AcGeVector3d&, bool, Color) override {}

private:
    void add(std::span<const AcGePoint3d> points) override
    {
        for (const AcGePoint3d& point : points)
        {
            m_extents.add(point);
        }
    }
    double widthOf(std::wstring_view text) const override { return estimatedWidth(text.size()); }

    WorldExtents m_extents;
};
}  // namespace

dxf::Measured entityExtents(const dxf::TagFile& file)
{
    Measure measure;
    Scene scene(file);
    scene.draw(measure);
    return {measure.extents(), scene.leftOut().empty()};
}
}  // namespace host::plot
