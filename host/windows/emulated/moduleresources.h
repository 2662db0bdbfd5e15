// Finds the resources of modules without Windows.
#pragma once

#include <cstddef>
#include <span>

#include "windows.h"

namespace host
{
// Sets the resources of a module: the bytes of a compiled resource file [borrowed], which must
// outlive the module. Empty bytes remove the resources. Bytes that are not a whole resource file
// end the run.
void setModuleResources(HINSTANCE module, std::span<const std::byte> bytes);

// Returns the resource that begins at this address [borrowed], or an empty span for any other
// address.
std::span<const std::byte> resourceAt(const void* first);
}  // namespace host
