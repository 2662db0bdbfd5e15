// Recognises files of other kinds that users mistake for drawings.
#pragma once

#include <string_view>

namespace host::dxf
{
// Returns the kind of file, judged by its first bytes, such as "a PDF document" [borrowed] as long
// as the program runs. Returns an empty text for a file that may be a DXF drawing.
std::string_view otherFormat(std::string_view bytes);
}  // namespace host::dxf
