// Reads a compiled resource file (.res), as every resource compiler writes it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "windows.h"

namespace host
{
// A number or a name. Names are kept in capitals.
struct ResourceKey
{
    WORD number = 0;
    std::wstring name{};  // empty: the number is the key

    bool operator==(const ResourceKey&) const = default;
};

struct Resource
{
    ResourceKey type;
    ResourceKey name;
    std::span<const std::byte> bytes;  // [borrowed] from the file's bytes
};

// Returns the key for which a MAKEINTRESOURCEW value or a text stands.
ResourceKey resourceKey(LPCWSTR text);

// Returns the resources, or nothing if the bytes are not a whole resource file.
std::optional<std::vector<Resource>> readResFile(std::span<const std::byte> bytes);
}  // namespace host
