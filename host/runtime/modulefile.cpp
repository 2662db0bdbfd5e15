#include "host/runtime/modulefile.h"

#include <utility>

#include "host/basics/outofmemory.h"
#include "host/windows/modules.h"

namespace host
{
Result<std::unique_ptr<ModuleFile>> ModuleFile::open(const std::filesystem::path& path)
{
    if (!std::filesystem::exists(path))
    {
        return Failure{path.string() + ": there is no such module"};
    }
    const LoadedFile loaded = [&]
    {
        const NoThrowing loading;  // static objects are constructed here, and destroyed below
        return loadFile(path);
    }();
    if (loaded.handle == nullptr && !loaded.isRefused)
    {
        return Failure{path.string() + ": not a module: " + loaded.reason};
    }
    std::unique_ptr<ModuleFile> file(new ModuleFile(path, loaded.handle));
    if (loaded.handle != nullptr)
    {
        if (const Result<> checked = file->check(); !checked)
        {
            return checked.failure();
        }
    }
    if (loaded.isRefused)
    {
        return Failure{path.string() + ": the module does not start"};
    }
    return file;
}

ModuleFile::ModuleFile(std::filesystem::path path, void* handle)
    : m_path(std::move(path)), m_handle(handle)
{
}

ModuleFile::~ModuleFile()
{
    if (m_handle != nullptr)
    {
        const NoThrowing unloading;
        unloadFile(m_handle);
    }
}

Result<> ModuleFile::check()
{
    using VersionQuery = decltype(&acrxGetApiVersion);
    const auto version = reinterpret_cast<VersionQuery>(exportOf(m_handle, "acrxGetApiVersion"));
    m_entryPoint = reinterpret_cast<EntryPoint>(exportOf(m_handle, "acrxEntryPoint"));
    if (version == nullptr || m_entryPoint == nullptr)
    {
        return Failure{m_path.string() + ": not a module: it does not show its entry points"};
    }
    if (version() != ACRX_API_VERSION)
    {
        return Failure{m_path.string() + ": made for another version of the host"};
    }
    return Done{};
}

bool ModuleFile::holds(const void* address) const
{
    const HINSTANCE own = instanceHolding(reinterpret_cast<const void*>(m_entryPoint));
    return own != nullptr && instanceHolding(address) == own;
}
}  // namespace host
