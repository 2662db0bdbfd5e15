// The typeface of plots: that of Linux where it is installed, else the one of the same widths.
#pragma once

#include <string_view>

#include "host/png/windows/drawing.h"

namespace host::plot
{
// The outlines of a text that begins at the origin, Y upwards, in heights of a capital.
std::unique_ptr<Gdiplus::GraphicsPath> outlines(std::wstring_view text);
}  // namespace host::plot
