// Where resources are looked up.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Handles of the modules with a CDynLinkLibrary, newest first.
std::vector<HINSTANCE> linkedModules();

// Order of a look-up: the current resource handle, then the linked modules.
std::vector<HINSTANCE> resourceChain();
}  // namespace host
