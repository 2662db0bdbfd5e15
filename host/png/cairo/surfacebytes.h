// Collects the bytes of the files that the drawing library writes.
#pragma once

#include <cairo.h>

#include <string>

#include "host/basics/result.h"

namespace host
{
// Appends the data to `bytes`, which is a std::string [borrowed]. The library's streams call it.
cairo_status_t appendTo(void* bytes, const unsigned char* data, unsigned length);

// Returns the picture as the bytes of a PNG file, or a failure when memory ran out.
Result<std::string> pngOf(cairo_surface_t* surface);
}  // namespace host
