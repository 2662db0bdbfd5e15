#pragma once

#include "host/dxf/edits.h"
#include "host/dxf/filesource.h"

namespace host::dxf
{
// View, coordinate systems, current properties and variables that are not as they were read.
void saveState(Edits& edits, const DatabaseCore& core);
}  // namespace host::dxf
