// The typeface of plots. Sizes are in heights of a capital.
#pragma once

#include <cairo.h>

#include <string_view>

namespace host::plot
{
// At the origin of the context's coordinates, whose Y points upwards.
void showText(cairo_t* cairo, std::wstring_view text);
}  // namespace host::plot
