#pragma once

#include "host/dxf/edits.h"
#include "host/dxf/filesource.h"

namespace host::dxf
{
// View, coordinate systems, current properties and variables that are not as they were read; the
// extents of model space, if the file states them and something has been made there.
void saveState(Edits& edits, const DatabaseCore& core);
}  // namespace host::dxf
