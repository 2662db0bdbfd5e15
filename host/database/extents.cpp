#include "host/database/extents.h"

#include <algorithm>

#include "host/database/packing.h"
#include "host/database/polylinevertices.h"
#include "host/database/textwidth.h"
#include "host/geometry/finite.h"
#include "host/geometry/ocs.h"

namespace host
{
void WorldExtents::add(const AcGePoint3d& point)
{
    if (!isFinite(point))
    {
        return;
    }
    if (empty())
    {
        low = high = point;
    }
    low.set(std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z));
    high.set(std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z));
}

void WorldExtents::add(const WorldExtents& other)
{
    if (!other.empty())
    {
        add(other.low);
        add(other.high);
    }
}

namespace
{
void addText(WorldExtents& extents, const AcDbText& text)
{
    const Ocs plane(text.normal());
    const AcGeVector3d right = plane.directionWcs(text.rotation());
    const double letters = estimatedWidth(std::wstring_view(text.textStringConst()).size());
    const AcGeVector3d along = right * (letters * text.height() * text.widthFactor());
    const AcGeVector3d up = plane.normal().crossProduct(right) * text.height();
    for (const AcGePoint3d& start : {text.position(), text.position() + up})
    {
        extents.add(start);
        extents.add(start + along);
    }
}

void addUnpacked(WorldExtents& extents, const AcDbObject& object)
{
    if (const AcDbText* text = AcDbText::cast(&object))
    {
        return addText(extents, *text);
    }
    if (const AcDbLine* line = AcDbLine::cast(&object))
    {
        extents.add(line->startPoint());
        extents.add(line->endPoint());
    }
    else if (const AcDb2dPolyline* polyline = AcDb2dPolyline::cast(&object))
    {
        for (const AcGePoint3d& corner : cornersOf(*polyline))
        {
            extents.add(corner);
        }
    }
}
}  // namespace

WorldExtents madeExtents(const DatabaseCore& core)
{
    WorldExtents extents;
    for (const AcDbStub& stub : core.objects())
    {
        if (stub.erased() || ownerOf(&stub) != core.roots()[Root::modelSpace])
        {
            continue;
        }
        if (!stub.packed())
        {
            addUnpacked(extents, *stub.object);
            continue;
        }
        const LineEnds ends = StubArena::endsOf(&stub);
        extents.add(ends.start);
        extents.add(ends.end);
    }
    return extents;
}

WorldExtents modelExtents(const DatabaseCore& core)
{
    WorldExtents extents =
        core.source() != nullptr ? core.source()->modelExtents() : WorldExtents();
    extents.add(madeExtents(core));
    return extents;
}
}  // namespace host
