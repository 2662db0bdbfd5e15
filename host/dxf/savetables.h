#pragma once

#include "host/dxf/edits.h"
#include "host/dxf/filesource.h"
#include "host/dxf/livestubs.h"

namespace host::dxf
{
// Records that every drawing has but this file does not write down, as far as a new entity names
// them; with them the tables, or the whole section, that they need.
void saveTables(Edits& edits, DatabaseCore& core, const LiveStubs& live);
}  // namespace host::dxf
