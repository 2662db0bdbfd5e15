// Measures the extents of the entities in a drawing's file.
#pragma once

#include "host/dxf/filesource.h"

namespace host::plot
{
// Measures everything that is visible in model space [wcs]. Endless lines do not count. The widths
// of texts are estimated as for texts that the host makes, so that they do not depend on the fonts
// of the system.
dxf::Measured entityExtents(const dxf::TagFile& file);
}  // namespace host::plot
