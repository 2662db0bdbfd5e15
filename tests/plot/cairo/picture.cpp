#include "tests/plot/picture.h"

#include <cairo.h>

#include <string_view>

namespace tests
{
static cairo_status_t take(void* rest, unsigned char* data, unsigned length)
{
    auto& bytes = *static_cast<std::string_view*>(rest);
    if (bytes.copy(reinterpret_cast<char*>(data), length) < length)
    {
        return CAIRO_STATUS_READ_ERROR;
    }
    bytes.remove_prefix(length);
    return CAIRO_STATUS_SUCCESS;
}

Picture::Picture(const std::string& bytes)
{
    std::string_view rest = bytes;
    cairo_surface_t* const surface = cairo_image_surface_create_from_png_stream(take, &rest);
    m_width = cairo_image_surface_get_width(surface);
    m_height = cairo_image_surface_get_height(surface);
    for (int row = 0; row < m_height; ++row)
    {
        const auto* const pixels = reinterpret_cast<const unsigned*>(
            cairo_image_surface_get_data(surface) + row * cairo_image_surface_get_stride(surface));
        std::transform(pixels, pixels + m_width, std::back_inserter(m_pixels),
                       [](unsigned pixel) { return pixel & 0xFFFFFF; });
    }
    cairo_surface_destroy(surface);
}
}  // namespace tests
