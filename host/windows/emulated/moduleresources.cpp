#include "host/windows/emulated/moduleresources.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "host/basics/breach.h"
#include "host/windows/modules.h"
#include "host/windows/emulated/resfile.h"
#include "windows.h"
#include "winuser.h"

namespace
{
using ModuleResources = std::map<HINSTANCE, std::vector<host::Resource>>;

// The map is never destroyed, because modules leave while the process ends.
ModuleResources& moduleResources()
{
    static ModuleResources& resources = *new ModuleResources;
    return resources;
}

const host::Resource* findResource(HMODULE module, LPCWSTR name, LPCWSTR type)
{
    const auto found = moduleResources().find(module ? module : host::programInstance());
    if (found == moduleResources().end())
    {
        return nullptr;
    }
    const host::ResourceKey wantedName = host::resourceKey(name);
    const host::ResourceKey wantedType = host::resourceKey(type);
    for (const host::Resource& resource : found->second)
    {
        if (resource.name == wantedName && resource.type == wantedType)
        {
            return &resource;
        }
    }
    return nullptr;
}

const host::Resource* resourceOf(HRSRC handle)
{
    return reinterpret_cast<const host::Resource*>(handle);
}

std::wstring textInBlock(HRSRC block, UINT index)
{
    if (block == nullptr)
    {
        return {};
    }
    const std::span<const std::byte> bytes = resourceOf(block)->bytes;
    std::vector<char16_t> units(bytes.size() / 2);
    std::copy_n(reinterpret_cast<const char*>(bytes.data()), units.size() * 2,
                reinterpret_cast<char*>(units.data()));
    std::size_t first = 0;
    for (; index > 0 && first < units.size(); --index)
    {
        first += 1 + units[first];
    }
    const std::size_t end = first < units.size() ? first + 1 + units[first] : 0;
    return end != 0 && end <= units.size()
               ? std::wstring(units.begin() + first + 1, units.begin() + end)
               : std::wstring();
}
}  // namespace

void host::setModuleResources(HINSTANCE module, std::span<const std::byte> bytes)
{
    const auto resources = readResFile(bytes);
    if (!resources)
    {
        breach("FindResourceW", "the module's resources are not whole");
    }
    if (resources->empty())
    {
        moduleResources().erase(module);
        return;
    }
    moduleResources()[module] = *resources;
}

std::span<const std::byte> host::resourceAt(const void* first)
{
    for (const auto& [module, resources] : moduleResources())
    {
        for (const Resource& resource : resources)
        {
            if (resource.bytes.data() == first)
            {
                return resource.bytes;
            }
        }
    }
    return {};
}

HRSRC FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type)
{
    const host::Resource* resource = findResource(module, name, type);
    return reinterpret_cast<HRSRC>(const_cast<host::Resource*>(resource));
}

DWORD SizeofResource(HMODULE, HRSRC resource)
{
    return resource != nullptr ? DWORD(resourceOf(resource)->bytes.size()) : 0;
}

HGLOBAL LoadResource(HMODULE, HRSRC resource)
{
    return resource != nullptr ? const_cast<std::byte*>(resourceOf(resource)->bytes.data())
                               : nullptr;
}

LPVOID LockResource(HGLOBAL data)
{
    return data;
}

// Finds a text. Texts lie in blocks of sixteen. Each has its length in front and no end mark.
int LoadStringW(HINSTANCE module, UINT id, LPWSTR text, int size)
{
    if (text == nullptr || size <= 0)
    {
        return 0;
    }
    text[0] = L'\0';
    const HRSRC block = FindResourceW(module, MAKEINTRESOURCEW(id / 16 + 1), RT_STRING);
    const std::wstring found = textInBlock(block, id % 16);
    text[found.copy(text, std::size_t(size) - 1)] = L'\0';
    return int(std::min(found.size(), std::size_t(size) - 1));
}
