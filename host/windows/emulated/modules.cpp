#include "host/windows/modules.h"

#include <dlfcn.h>
#include <sys/auxv.h>

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "host/basics/breach.h"
#include "host/windows/emulated/moduleresources.h"
#include "host/windows/emulated/registration.h"
#include "host/windows/resourcechain.h"

namespace host
{
namespace
{
struct Module
{
    std::filesystem::path path;
    AttachModule attach;
};

struct Registry
{
    std::map<HINSTANCE, Module> modules;
    std::optional<std::filesystem::path> loading;  // the name, while a loader is working
    HINSTANCE arrived = nullptr;                   // the module that took the name
};

// The record is never destroyed, because modules leave while the process ends, in an order that we
// do not control.
Registry& registry()
{
    static Registry& instance = *new Registry;
    return instance;
}

// Makes the path absolute. Dots and links stay as they are: removing ".." from the text would give
// another folder behind a link.
std::filesystem::path pathInProcess(const void* address, HINSTANCE module)
{
    if (module == programInstance())
    {
        return std::filesystem::read_symlink("/proc/self/exe");
    }
    Dl_info info;
    dladdr(address, &info);
    return std::filesystem::absolute(info.dli_fname);
}
}  // namespace

LoadedFile loadFile(const std::filesystem::path& path)
{
    nameLoadingModule(path);
    void* const handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    const HINSTANCE instance = attachLoadedModule();
    if (handle == nullptr)
    {
        const char* const reason = dlerror();
        return {.reason = reason != nullptr ? reason : ""};
    }
    return {.handle = handle, .isRefused = instance == nullptr};
}

void unloadFile(void* handle)
{
    dlclose(handle);
}

void* exportOf(void* handle, const char* name)
{
    return dlsym(handle, name);
}

HINSTANCE instanceHolding(const void* address)
{
    Dl_info info;
    return dladdr(address, &info) != 0 ? static_cast<HINSTANCE>(info.dli_fbase) : nullptr;
}

HINSTANCE programInstance()
{
    return instanceHolding(reinterpret_cast<const void*>(getauxval(AT_PHDR)));
}

void nameLoadingModule(const std::filesystem::path& path)
{
    registry().loading = std::filesystem::absolute(path);
    registry().arrived = nullptr;
}

HINSTANCE attachLoadedModule()
{
    registry().loading.reset();
    const HINSTANCE module = std::exchange(registry().arrived, nullptr);
    if (module == nullptr || !registry().modules.at(module).attach(module))
    {
        return nullptr;
    }
    return module;
}

bool isModule(HINSTANCE handle)
{
    return handle == programInstance() || registry().modules.contains(handle);
}

HINSTANCE registerModule(const void* address, AttachModule attach)
{
    const HINSTANCE module = instanceHolding(address);
    if (registry().loading)
    {
        registry().modules[module] = {*registry().loading, attach};
        registry().arrived = module;
        return module;
    }
    registry().modules[module] = {pathInProcess(address, module), attach};
    if (!attach(module))
    {
        breach("DllMain", "refused to attach a module that no loader can give up");
    }
    return module;
}

void forgetModule(HINSTANCE module)
{
    const std::vector<HINSTANCE> linked = linkedModules();
    if (std::ranges::find(linked, module) != linked.end())
    {
        breach("AfxTermExtensionModule", "not called before the module left");
    }
    setModuleResources(module, {});
    registry().modules.erase(module);
}

std::filesystem::path modulePath(HINSTANCE module)
{
    const HINSTANCE known = module != nullptr ? module : programInstance();
    const auto found = registry().modules.find(known);
    if (found != registry().modules.end())
    {
        return found->second.path;
    }
    return known == programInstance() ? pathInProcess(nullptr, known) : std::filesystem::path();
}
}  // namespace host
