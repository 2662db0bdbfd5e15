// How a module comes into the process and leaves it.
//
// The loader works in three steps:
//     nameLoadingModule(path);
//     void* library = dlopen(path.c_str(), RTLD_NOW);
//     HINSTANCE module = attachLoadedModule();   // also when dlopen failed
// and closes it with dlclose, which runs DllMain with DLL_PROCESS_DETACH first, then the
// destructors of the module's static objects.
#pragma once

#include <filesystem>

#include "windows.h"

namespace host
{
// Tells under which name the next module comes. It must be known before dlopen, since static
// objects of the module may ask for it. A relative path is made absolute, a symbolic link is kept.
void nameLoadingModule(const std::filesystem::path& path);

// Runs DllMain of the module that came in since nameLoadingModule; its static objects are made by
// now. Null when DllMain refused or no module came (a file without start-up code, or one that was
// open already); the library then is to be closed.
HINSTANCE attachLoadedModule();

// The rest is for the start-up code that every module holds.

// Calls the module's DllMain; false when that refuses.
using AttachModule = bool (*)(HINSTANCE module);

// Puts the module that holds `address` on record. One that no loader has named (it is linked into
// the program, or opened by hand) attaches at once, maybe before the last of its static objects is
// made, and its refusal ends the process.
HINSTANCE registerModule(const void* address, AttachModule attach);

// After detach. A module that is still in the resource chain then breaks the rules.
void forgetModule(HINSTANCE module);
}  // namespace host
