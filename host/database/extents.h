// The box that things take up in the world.
#pragma once

#include "gepnt3d.h"

namespace host
{
class DatabaseCore;

// An empty one has the corners that drawings state for it, low above high.
struct WorldExtents
{
    AcGePoint3d low{1e20, 1e20, 1e20};
    AcGePoint3d high{-1e20, -1e20, -1e20};

    bool empty() const { return low.x > high.x; }
    void add(const AcGePoint3d& point);  // left out if it is not finite
    void add(const WorldExtents& other);
};

// Of what has been made in model space since the drawing was opened and is there now. Texts have
// the width that is estimated for them: there are no fonts here.
WorldExtents madeExtents(const DatabaseCore& core);

// Of all of model space: that, and what the drawing's file holds there. Worked out on every call.
WorldExtents modelExtents(const DatabaseCore& core);
}  // namespace host
