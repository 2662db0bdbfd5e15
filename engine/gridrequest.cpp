#include "engine/gridrequest.h"

#include <algorithm>

Adesk::UInt16 colorIndex(const GridRequest& request)
{
    return static_cast<Adesk::UInt16>(request.options.Color);
}

void addMade(AcDbObjectIdArray& made, AcDbObjectId id)
{
    if (id.isNull())
    {
        return;
    }
    // The host grows its arrays by a few entries at a time, so appending a million ids would copy
    // the array again and again.
    if (made.length() == made.physicalLength())
    {
        made.setPhysicalLength(made.length() * 2 + 8);
    }
    made.append(id);
}

void sortCorners(AcGePoint3d& corner1, AcGePoint3d& corner2)
{
    if (corner1.x > corner2.x)
    {
        std::swap(corner1.x, corner2.x);
    }
    if (corner1.y > corner2.y)
    {
        std::swap(corner1.y, corner2.y);
    }
}
