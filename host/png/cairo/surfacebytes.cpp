#include "host/png/cairo/surfacebytes.h"

#include <new>

namespace host
{
// Catches every exception, because none may pass through the library.
cairo_status_t appendTo(void* bytes, const unsigned char* data, unsigned length)
try
{
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}
catch (const std::bad_alloc&)
{
    return CAIRO_STATUS_NO_MEMORY;
}

Result<std::string> pngOf(cairo_surface_t* surface)
{
    std::string bytes;
    const cairo_status_t status = cairo_surface_write_to_png_stream(surface, appendTo, &bytes);
    return status == CAIRO_STATUS_SUCCESS ? Result<std::string>(std::move(bytes))
                                          : Failure{"not enough memory"};
}
}  // namespace host
