// How much room the entities of a drawing's file take.
#pragma once

#include "host/database/extents.h"
#include "host/dxf/tagfile.h"

namespace host::plot
{
// Of all that is to be seen in model space. Endless lines do not count; texts have the width that
// is estimated for those that are made here, whatever fonts the system has.
WorldExtents entityExtents(const dxf::TagFile& file);
}  // namespace host::plot
