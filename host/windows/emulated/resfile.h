// A compiled resource file (.res), as every resource compiler writes it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "windows.h"

namespace host
{
// A number or a name; names are kept in capitals.
struct ResourceKey
{
    WORD number = 0;
    std::wstring name{};  // empty: the number counts

    bool operator==(const ResourceKey&) const = default;
};

struct Resource
{
    ResourceKey type;
    ResourceKey name;
    std::span<const std::byte> bytes;  // [borrowed] from the file's bytes
};

// The key that MAKEINTRESOURCEW or a text stands for.
ResourceKey resourceKey(LPCWSTR text);

// Nothing for bytes that are no whole resource file.
std::optional<std::vector<Resource>> readResFile(std::span<const std::byte> bytes);
}  // namespace host
