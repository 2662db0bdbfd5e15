#include "host/runtime/modulefile.h"

#include <dlfcn.h>

#include <utility>

#include "host/windows/modules.h"

namespace host
{
namespace
{
// Start of the file that the address was loaded from.
const void* baseOf(const void* address)
{
    Dl_info info{};
    return dladdr(address, &info) != 0 ? info.dli_fbase : nullptr;
}
}  // namespace

std::unique_ptr<ModuleFile> ModuleFile::open(const std::filesystem::path& path, std::string& error)
{
    if (!std::filesystem::exists(path))
    {
        error = path.string() + ": there is no such module";
        return nullptr;
    }
    nameLoadingModule(path);
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    const HINSTANCE instance = attachLoadedModule();
    if (handle == nullptr)
    {
        const char* reason = dlerror();
        error = path.string() + ": not a module: " + (reason ? reason : "");
        return nullptr;
    }
    std::unique_ptr<ModuleFile> file(new ModuleFile(path, handle));
    if (!file->check(error))
    {
        return nullptr;
    }
    if (instance == nullptr)
    {
        error = path.string() + ": the module does not start";
        return nullptr;
    }
    return file;
}

ModuleFile::ModuleFile(std::filesystem::path path, void* handle)
    : m_path(std::move(path)), m_handle(handle)
{
}

ModuleFile::~ModuleFile()
{
    dlclose(m_handle);
}

bool ModuleFile::check(std::string& error)
{
    using VersionQuery = decltype(&acrxGetApiVersion);
    const auto version = reinterpret_cast<VersionQuery>(dlsym(m_handle, "acrxGetApiVersion"));
    m_entryPoint = reinterpret_cast<EntryPoint>(dlsym(m_handle, "acrxEntryPoint"));
    if (version == nullptr || m_entryPoint == nullptr)
    {
        error = m_path.string() + ": not a module: it does not show its entry points";
        return false;
    }
    if (version() != ACRX_API_VERSION)
    {
        error = m_path.string() + ": made for another version of the host";
        return false;
    }
    return true;
}

bool ModuleFile::holds(const void* address) const
{
    const void* base = baseOf(reinterpret_cast<const void*>(m_entryPoint));
    return base != nullptr && baseOf(address) == base;
}
}  // namespace host
