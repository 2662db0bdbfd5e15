// The drawing that is there when none was opened.
#pragma once

#include <string>

namespace host::dxf
{
// The text of a new, empty, metric drawing of R2013: millimetres, plan view, world coordinates,
// layer 0, text style Standard. The same bytes at every call.
std::string emptyDrawing();
}  // namespace host::dxf
