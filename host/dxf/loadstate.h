#pragma once

#include "host/dxf/filesource.h"

namespace host::dxf
{
// Handles above this leave no room for the new objects of a session.
inline constexpr std::uint64_t highestUsableHandle = UINT64_MAX >> 1;

// Loads the header variables, the view, the coordinate systems, the current properties and the
// handle seed.
void loadState(DatabaseCore& core, const FileSource& source);
}  // namespace host::dxf
