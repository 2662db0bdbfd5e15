// The bytes of the files that the drawing library makes.
#pragma once

#include <cairo.h>

#include <string>

#include "host/runtime/result.h"

namespace host
{
// Appends the data to `bytes`, which is a std::string [borrowed]. The library's streams call it.
cairo_status_t appendTo(void* bytes, const unsigned char* data, unsigned length);

// The picture as the bytes of a PNG file. It fails when memory runs out.
Result<std::string> pngOf(cairo_surface_t* surface);
}  // namespace host
