// The order in which modules are searched for resources.
#pragma once

#include <vector>

#include "windows.h"

namespace host
{
// Returns the handles of the modules with a CDynLinkLibrary, the newest first.
std::vector<HINSTANCE> linkedModules();

// Tells whether the host's dialog library is among them. Without it the host's dialogs lack their
// texts and pictures.
bool isDialogLibraryLinked();

// Returns the modules in the order in which they are searched: the current resource handle, then
// the linked modules.
std::vector<HINSTANCE> resourceChain();
}  // namespace host
