// The resources of modules: what is found in them without Windows.
#pragma once

#include <cstddef>
#include <span>

#include "windows.h"

namespace host
{
// Gives a module its resources: the bytes of a compiled resource file, which must outlive the
// module; empty takes them away. Bytes that are no whole resource file end the run.
void setModuleResources(HINSTANCE module, std::span<const std::byte> bytes);

// The resource that begins at this address; empty for any other address.
std::span<const std::byte> resourceAt(const void* first);
}  // namespace host
