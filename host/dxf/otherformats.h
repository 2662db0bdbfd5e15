// Files of other kinds that are taken for drawings.
#pragma once

#include <string_view>

namespace host::dxf
{
// What the file is, by how it begins: "a PDF document". Empty for what may be a DXF drawing.
std::string_view otherFormat(std::string_view bytes);
}  // namespace host::dxf
