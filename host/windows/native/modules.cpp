#include "host/windows/modules.h"

#include <string>

#include "host/windows/text.h"

namespace host
{
namespace
{
// Returns the system's message in the language of the machine, on one line.
std::string reasonOf(DWORD error)
{
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                       FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                   nullptr, error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const std::string reason = text != nullptr ? toUtf8(text) : "error " + std::to_string(error);
    LocalFree(text);
    return reason.substr(0, reason.find_last_not_of(' ') + 1);
}
}  // namespace

LoadedFile loadFile(const std::filesystem::path& path)
{
    const std::filesystem::path named = std::filesystem::absolute(path);
    HMODULE const module = LoadLibraryExW(named.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (module != nullptr)
    {
        return {.handle = module};
    }
    const DWORD error = GetLastError();
    return {.reason = reasonOf(error), .isRefused = error == ERROR_DLL_INIT_FAILED};
}

void unloadFile(void* handle)
{
    FreeLibrary(static_cast<HMODULE>(handle));
}

void* exportOf(void* handle, const char* name)
{
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle), name));
}

std::filesystem::path modulePath(HINSTANCE module)
{
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(module, path.data(), DWORD(path.size()));
    while (length == path.size())
    {
        path.resize(2 * path.size());
        length = GetModuleFileNameW(module, path.data(), DWORD(path.size()));
    }
    path.resize(length);
    return path;
}

bool isModule(HINSTANCE handle)
{
    return handle != nullptr && !modulePath(handle).empty();
}

HINSTANCE programInstance()
{
    return GetModuleHandleW(nullptr);
}

HINSTANCE instanceHolding(const void* address)
{
    HMODULE module = nullptr;
    GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<const wchar_t*>(address), &module);
    return module;
}
}  // namespace host
