#include "engine/gridrequest.h"

#include <algorithm>

void addMade(AcDbObjectIdArray& made, AcDbObjectId id)
{
    if (!id.isNull())
    {
        // The host may grow its arrays by no more than this, so appending a million ids would copy
        // the array again and again.
        made.setGrowLength(made.length() + 8);
        made.append(id);
    }
}

void sortCorners(AcGePoint3d& corner1, AcGePoint3d& corner2)
{
    for (int axis = 0; axis < 2; ++axis)
    {
        if (corner1[axis] > corner2[axis])
        {
            std::swap(corner1[axis], corner2[axis]);
        }
    }
}
