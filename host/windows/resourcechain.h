// The order in which the resources of modules are looked up.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Handles of the modules with a CDynLinkLibrary, newest first.
std::vector<HINSTANCE> linkedModules();

// Whether the host's dialog library is among them. Without it a dialog of the host misses its texts
// and pictures.
bool isDialogLibraryLinked();

// The modules in the order in which a resource is looked up: the current resource handle, then the
// linked modules.
std::vector<HINSTANCE> resourceChain();
}  // namespace host
