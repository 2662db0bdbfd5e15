// The drawing of a run that opens no file.
#pragma once

#include <string>

namespace host::dxf
{
// Returns the text of a new, empty, metric R2013 drawing: millimetres, plan view, world
// coordinates, layer 0, text style Standard. Every call returns the same bytes.
std::string emptyDrawing();
}  // namespace host::dxf
