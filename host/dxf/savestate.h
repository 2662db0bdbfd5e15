#pragma once

#include "host/dxf/edits.h"
#include "host/dxf/filesource.h"

namespace host::dxf
{
// Saves the parts of the drawing's state that have changed since it was read: view, coordinate
// systems, current properties and variables. Saves the extents of model space, too, if the file
// states them and something has been made there.
void saveState(Edits& edits, const DatabaseCore& core);
}  // namespace host::dxf
