// The bytes of the files that the drawing library makes.
#pragma once

#include <cairo.h>

#include <string>

#include "host/runtime/result.h"

namespace host
{
// For the library's streams: puts the data behind those that the std::string `bytes` has.
cairo_status_t appendTo(void* bytes, const unsigned char* data, unsigned length);

// The bytes of a PNG file. It fails when memory ran out.
Result<std::string> pngOf(cairo_surface_t* surface);
}  // namespace host
