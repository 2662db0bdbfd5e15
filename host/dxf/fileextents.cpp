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

// More than a point.
bool isBox(const AcGePoint3d& low, const AcGePoint3d& high)
{
    return low.x <= high.x && low.y <= high.y && low.z <= high.z &&
           (low.x < high.x || low.y < high.y);
}

WorldExtents extentsOf(const FileSource& source)
{
    const AcGePoint3d* low = statedPoint(source, L"EXTMIN");
    const AcGePoint3d* high = statedPoint(source, L"EXTMAX");
    if (low != nullptr && high != nullptr && isBox(*low, *high))
    {
        return {*low, *high};
    }
    return measureFile != nullptr ? measureFile(source.file) : WorldExtents();
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
        m_extents = extentsOf(*this);
    }
    return *m_extents;
}
}  // namespace host::dxf
