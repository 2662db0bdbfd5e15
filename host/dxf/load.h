// Loads a database from a drawing file.
#pragma once

#include <string_view>

#include "host/dxf/filesource.h"

namespace host::dxf
{
// Fills an empty database. Throws an Error for a file whose records do not make a drawing.
void load(DatabaseCore& core, TagFile file);

// Returns the name of a table in section TABLES [borrowed] from the file.
std::string_view tableName(const TagFile& file, const Record& table);
}  // namespace host::dxf
