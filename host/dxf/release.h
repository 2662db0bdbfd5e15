// What the releases of DXF can hold.
#pragma once

#include <string_view>

namespace host::dxf
{
struct Release
{
    std::string_view version;  // of $ACADVER
    std::string_view name;
    bool objects;    // classes of entities by name, dictionaries and groups; handles always
    bool ownership;  // every object names its owner; line weights
    bool utf8;       // texts, whatever the header says
};

// R12 to R2018; null for any other version.
const Release* findRelease(std::string_view version);

// A file that does not say its version is the oldest: from R13 on every file must.
inline constexpr std::string_view unstatedVersion = "AC1009";
}  // namespace host::dxf
