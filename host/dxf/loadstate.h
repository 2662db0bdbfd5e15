#pragma once

#include "host/dxf/filesource.h"

namespace host::dxf
{
// Above this no room is left for the new objects of a session.
inline constexpr std::uint64_t highestUsableHandle = UINT64_MAX >> 1;

// Header variables, view and coordinate systems, current properties and the handle seed.
void loadState(DatabaseCore& core, const FileSource& source);
}  // namespace host::dxf
