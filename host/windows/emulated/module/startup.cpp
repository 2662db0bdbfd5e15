// This file is linked into every module. It provides what Windows' linker takes from the host's
// import library (the answer to the host's version query) and from the C runtime (the calls of
// DllMain).
#include <cstdlib>
#include <utility>

#include "rxdefs.h"
#include "windows.h"

#include "../../modules.h"
#include "../moduleresources.h"
#include "../registration.h"

// Hidden, so that it is always the module's own, whatever the program exports.
extern "C" __attribute__((visibility("hidden"))) int APIENTRY DllMain(HINSTANCE, DWORD, LPVOID);

// The DllMain of a module that does not define one.
extern "C" __attribute__((weak)) int APIENTRY DllMain(HINSTANCE, DWORD, LPVOID)
{
    return TRUE;
}

extern "C" int acrxGetApiVersion()
{
    return ACRX_API_VERSION;
}

// The module's compiled resources; both are null in a module without resources.
extern "C" __attribute__((weak, visibility("hidden"))) const std::byte arxResources[];
extern "C" __attribute__((weak, visibility("hidden"))) const std::byte arxResourcesEnd[];

namespace
{
HINSTANCE s_module = nullptr;
bool s_attachCalled = false;

// Detaches even a module that has refused to attach, as Windows does.
void leave()
{
    const HINSTANCE module = std::exchange(s_module, nullptr);
    if (module == nullptr)
    {
        return;
    }
    if (s_attachCalled)
    {
        DllMain(module, DLL_PROCESS_DETACH, nullptr);
    }
    host::forgetModule(module);
}

bool attach(HINSTANCE module)
{
    // `leave` is registered when all static objects exist, so it runs before any of them is
    // destroyed. It serves a process that ends while the module is loaded. dlclose calls the
    // destructor function below first.
    std::atexit(leave);
    s_module = module;
    s_attachCalled = true;
    return DllMain(module, DLL_PROCESS_ATTACH, nullptr) != 0;
}

// Runs at some point among the constructors of the module's static objects. If a loader exists, it
// does the attaching.
__attribute__((constructor)) void enter()
{
    host::setModuleResources(host::instanceHolding(&s_module), {arxResources, arxResourcesEnd});
    s_module = host::registerModule(&s_module, attach);
}

__attribute__((destructor)) void unload()
{
    leave();
}
}  // namespace
