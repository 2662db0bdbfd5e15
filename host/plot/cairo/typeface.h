// The typeface of plots. All sizes are in heights of a capital letter.
#pragma once

#include <cairo.h>

#include <string_view>

namespace host::plot
{
// Draws the text at the origin of the context's coordinates, whose Y points up.
void showText(cairo_t* cairo, std::wstring_view text);
}  // namespace host::plot
