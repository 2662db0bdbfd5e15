// The box that objects occupy in the world.
#pragma once

#include "gepnt3d.h"

namespace host
{
class DatabaseCore;

// A box in [wcs]. An empty box has the corners that drawing files state for it, with low above
// high.
struct WorldExtents
{
    AcGePoint3d low{1e20, 1e20, 1e20};
    AcGePoint3d high{-1e20, -1e20, -1e20};

    bool empty() const { return low.x > high.x; }
    void add(const AcGePoint3d& point);  // ignores a point that is not finite
    void add(const WorldExtents& other);
};

// Returns the extents of the entities that were made in model space since the drawing was opened
// and are still there. The widths of texts are estimated, because the host has no fonts.
WorldExtents madeExtents(const DatabaseCore& core);

// Returns the extents of all of model space, including what the drawing's file holds there.
// Computes them on every call.
WorldExtents modelExtents(const DatabaseCore& core);
}  // namespace host
