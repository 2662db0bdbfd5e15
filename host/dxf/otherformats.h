// Recognises files of other kinds that users mistake for drawings.
#pragma once

#include <string_view>

namespace host::dxf
{
// Returns what the file is, judged by its first bytes: "a PDF document". Returns an empty string
// for a file that may be a DXF drawing.
std::string_view otherFormat(std::string_view bytes);
}  // namespace host::dxf
