// The typeface of plots: the typeface of Linux if it is installed, otherwise one of the same
// widths.
#pragma once

#include <string_view>

#include "host/png/windows/drawing.h"

namespace host::plot
{
// Returns the outlines of a text that begins at the origin, in heights of a capital letter. Y
// points up.
std::unique_ptr<Gdiplus::GraphicsPath> outlines(std::wstring_view text);
}  // namespace host::plot
