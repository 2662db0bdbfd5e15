// Registers a module when it enters the process and removes it when it leaves.
//
// The loader works in three steps:
//     nameLoadingModule(path);
//     void* library = dlopen(path.c_str(), RTLD_NOW);
//     HINSTANCE module = attachLoadedModule();   // even if dlopen failed
// The loader closes the module with dlclose, which first runs DllMain with DLL_PROCESS_DETACH and
// then the destructors of the module's static objects.
#pragma once

#include <filesystem>

#include "windows.h"

namespace host
{
// Sets the name of the next module. The name must be known before dlopen, because static objects of
// the module may ask for it. A relative path is made absolute. A symbolic link stays as it is.
void nameLoadingModule(const std::filesystem::path& path);

// Runs DllMain of the module that entered the process since nameLoadingModule. The constructors of
// its static objects have run already. Returns nullptr if DllMain refused or no module entered,
// because the file has no start-up code or was open already. The caller must then close the
// library.
HINSTANCE attachLoadedModule();

// The start-up code that every module contains uses the remaining declarations.

// Calls the module's DllMain. Returns false if DllMain refuses.
using AttachModule = bool (*)(HINSTANCE module);

// Registers the module that contains `address`. If no loader has named the module, because it is
// linked into the program or was opened directly, it attaches at once. Some of its static objects
// may not be constructed by then, and a refusal ends the process.
HINSTANCE registerModule(const void* address, AttachModule attach);

// Removes a module after it has detached. Ends the run if the module is still in the resource
// chain.
void forgetModule(HINSTANCE module);
}  // namespace host
