// Saves what has changed in a database since it was loaded.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/dxf/filesource.h"
#include "host/dxf/progress.h"

namespace host::dxf
{
// Calls `take` with everything that has changed since `load`. The edits are valid only during the
// call.
void withChanges(DatabaseCore& core, const std::function<void(const Edits&)>& take);

// Returns a number that identifies everything that has changed since `load`. Other changes give
// another number.
std::uint64_t digestOfChanges(DatabaseCore& core);

// Saves the file with everything that has changed since `load`. Throws an Error when it cannot be
// saved.
void save(DatabaseCore& core, const std::string& path, const Progress& progress);

// Returns one line for each thing that the file's release cannot hold.
std::vector<std::string> lossesOnSaving(const DatabaseCore& core);
}  // namespace host::dxf
