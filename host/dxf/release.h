// Describes what each release of DXF can hold.
#pragma once

#include <string_view>

namespace host::dxf
{
struct Release
{
    std::string_view version;  // as in $ACADVER
    std::string_view name;
    bool objects;     // records name classes; there are dictionaries, groups and handles
    bool ownership;   // every object names its owner; entities have line weights
    bool trueColors;  // entities and layers have colours beside those of the palette
    bool utf8;        // texts are UTF-8 even if the header names a code page
};

// Returns the release of a version, R12 to R2018 [borrowed], which lives as long as the program.
// Returns nullptr for any other version.
const Release* findRelease(std::string_view version);

// The version of a file that states no version. From R13 on every file must state its version, so
// such a file is R12.
inline constexpr std::string_view unstatedVersion = "AC1009";
}  // namespace host::dxf
