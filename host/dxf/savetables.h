#pragma once

#include "host/dxf/edits.h"
#include "host/dxf/filesource.h"
#include "host/dxf/livestubs.h"

namespace host::dxf
{
// Adds the records that every drawing has but this file does not contain, if a new entity names
// them. Adds the tables, or the whole section, that these records need.
void saveTables(Edits& edits, DatabaseCore& core, const LiveStubs& live);
}  // namespace host::dxf
