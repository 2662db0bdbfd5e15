#include "host/database/extents.h"

#include <algorithm>

#include "host/database/packing.h"
#include "host/database/polylinevertices.h"
#include "host/database/textwidth.h"
#include "host/geometry/finite.h"
#include "host/geometry/ocs.h"

namespace host
{
namespace
{
void addFinite(WorldExtents& extents, const AcGePoint3d& point)
{
    AcGePoint3d& low = extents.low;
    AcGePoint3d& high = extents.high;
    if (extents.empty())
    {
        low = high = point;
    }
    low.set(std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z));
    high.set(std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z));
}
}  // namespace

void WorldExtents::add(const AcGePoint3d& point)
{
    if (isFinite(point))
    {
        addFinite(*this, point);
    }
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
    const AcDbStub* const space = core.roots()[Root::modelSpace];
    // Many consecutive lines share one style, and so one owner.
    std::uint32_t style = LineStyles::none;
    bool isInSpace = false;
    for (const AcDbStub& stub : core.objects())
    {
        if (stub.erased())
        {
            continue;
        }
        if (!stub.packed())
        {
            if (ownerOf(&stub) == space)
            {
                addUnpacked(extents, *stub.object);
            }
            continue;
        }
        if (stub.style != style)
        {
            style = stub.style;
            isInSpace = core.objects().style(style).owner == space;
        }
        if (isInSpace)
        {
            const LineEnds ends = StubArena::endsOf(&stub);
            addFinite(extents, ends.start);  // every line of a drawing is finite
            addFinite(extents, ends.end);
        }
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
