// Measures the extents of the entities in a drawing's file.
#pragma once

#include "host/dxf/filesource.h"

namespace host::plot
{
// Measures everything that is visible in model space [wcs], except infinite lines. The widths of
// texts are estimated as for texts that the host creates, so that they do not depend on the fonts
// of the system.
dxf::Measured entityExtents(const dxf::TagFile& file);
}  // namespace host::plot
