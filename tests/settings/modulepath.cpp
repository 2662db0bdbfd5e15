#include "tests/settings/modulepath.h"

#include <cwchar>
#include <optional>

#include "hostapi/host.h"
#include "tests/app/original.h"

namespace
{
std::optional<std::wstring> current;
}  // namespace

ModulePath::ModulePath(const std::wstring& path)
{
    current = path;
}

ModulePath::~ModulePath()
{
    current.reset();
}

// In the place of the host's function.
DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD size)
{
    if (!current)
    {
        return original<DWORD(HMODULE, LPWSTR, DWORD)>("GetModuleFileNameW")(module, path, size);
    }
    const std::wstring cut = current->substr(0, size - 1);
    std::wcscpy(path, cut.c_str());
    return static_cast<DWORD>(cut.size() < current->size() ? size : cut.size());
}
