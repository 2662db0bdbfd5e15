// Opens and checks a module's file: the part of loading that the operating system does.
#pragma once

#include <filesystem>
#include <memory>

#include "host/basics/result.h"
#include "rxdefs.h"

namespace host
{
// An open module file. The destructor unloads it. The path is [borrowed] as long as the object
// lives.
class ModuleFile
{
public:
    // Loads the file and starts the module. Fails when the file is not a module of this generation
    // or when the module cannot start. The path is kept as given: a link to a module counts as a
    // module in the folder of the link.
    static Result<std::unique_ptr<ModuleFile>> open(const std::filesystem::path& path);
    ~ModuleFile();
    ModuleFile(const ModuleFile&) = delete;
    ModuleFile& operator=(const ModuleFile&) = delete;

    // Calls the module's entry point and returns its answer.
    AcRx::AppRetCode send(AcRx::AppMsgCode message, void* packet)
    {
        return m_entryPoint(message, packet);
    }
    // Tells whether a function or table at that address is part of this file.
    bool holds(const void* address) const;
    const std::filesystem::path& path() const { return m_path; }

private:
    using EntryPoint = decltype(&acrxEntryPoint);

    ModuleFile(std::filesystem::path path, void* handle);
    Result<> check();

    std::filesystem::path m_path;
    void* m_handle;
    EntryPoint m_entryPoint = nullptr;
};
}  // namespace host
