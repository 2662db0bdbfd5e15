#include "host/dxf/filesource.h"

namespace host::dxf
{
namespace
{
Measure measureFile = nullptr;

const AcGePoint3d* statedPoint(const FileSource& source, const wchar_t* name)
{
    const auto found = source.state.variables.find(name);
    return found != source.state.variables.end() ? std::get_if<AcGePoint3d>(&found->second)
                                                 : nullptr;
}

// Returns true if the box is more than a point.
bool isBox(const AcGePoint3d& low, const AcGePoint3d& high)
{
    return low.x <= high.x && low.y <= high.y && low.z <= high.z &&
           (low.x < high.x || low.y < high.y);
}

// Returns the box that the header states; empty if it states no box.
WorldExtents statedBox(const FileSource& source)
{
    const AcGePoint3d* low = statedPoint(source, L"EXTMIN");
    const AcGePoint3d* high = statedPoint(source, L"EXTMAX");
    const bool isStated = low != nullptr && high != nullptr && isBox(*low, *high);
    return isStated ? WorldExtents{*low, *high} : WorldExtents();
}
}  // namespace

void setMeasure(Measure measure)
{
    measureFile = measure;
}

const WorldExtents& FileSource::modelExtents()
{
    if (!m_extents)
    {
        const Measured measured =
            measureFile != nullptr ? measureFile(file) : Measured{.extents = {}, .isWhole = false};
        m_extents = measured.extents;
        if (!measured.isWhole)
        {
            m_extents->add(statedBox(*this));
        }
    }
    return *m_extents;
}

WorldExtents FileSource::statedExtents()
{
    const WorldExtents stated = statedBox(*this);
    return stated.empty() ? modelExtents() : stated;
}
}  // namespace host::dxf
