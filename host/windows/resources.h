// The resources of modules, and the order in which they are looked up.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "windows.h"

namespace host
{
// Handles of the modules with a CDynLinkLibrary, newest first.
std::vector<HINSTANCE> linkedModules();

// Whether the host's dialog library is among them: without it a dialog of the host misses its texts
// and pictures.
bool isDialogLibraryLinked();

// Order of a look-up: the current resource handle, then the linked modules.
std::vector<HINSTANCE> resourceChain();

// Gives a module its resources: the bytes of a compiled resource file, which must outlive the
// module; empty takes them away. Bytes that are no whole resource file end the run.
void setModuleResources(HINSTANCE module, std::span<const std::byte> bytes);

// The resource that begins at this address; empty for any other address.
std::span<const std::byte> resourceAt(const void* first);
}  // namespace host
