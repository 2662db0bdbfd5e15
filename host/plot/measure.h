// How much room the entities of a drawing's file take.
#pragma once

#include "host/dxf/filesource.h"

namespace host::plot
{
// Measures all that is to be seen in model space, WCS. Endless lines do not count; texts have the
// width that is estimated for those that are made here, whatever fonts the system has.
dxf::Measured entityExtents(const dxf::TagFile& file);
}  // namespace host::plot
