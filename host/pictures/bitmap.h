// Reads bitmaps from a module's resources.
#pragma once

#include <cairo.h>

#include <cstddef>
#include <memory>
#include <span>

namespace host
{
// A picture of the drawing library; it frees itself.
using Image = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

// Reads an uncompressed bitmap of 4, 8 or 24 bits a pixel, rows from the bottom up, as a resource
// holds it: without the header of the file. The light grey that marks the button's face (192 each)
// becomes transparent. Returns null for any other bytes.
Image imageOfBitmap(std::span<const std::byte> bytes);
}  // namespace host
