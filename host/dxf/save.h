// What has changed in a database since it was loaded, as a drawing file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/dxf/filesource.h"
#include "host/dxf/progress.h"

namespace host::dxf
{
// Calls `take` with everything that has changed since `load`: good for the length of the call.
void withChanges(DatabaseCore& core, const std::function<void(const Edits&)>& take);

// Stands for everything that has changed since `load`: another number for other changes.
std::uint64_t digestOfChanges(DatabaseCore& core);

// Saves the file with everything that has changed since `load`. Throws an Error when it cannot.
void save(DatabaseCore& core, const std::string& path, const Progress& progress);

// What the file's release cannot hold, a line for each.
std::vector<std::string> lossesOnSaving(const DatabaseCore& core);
}  // namespace host::dxf
