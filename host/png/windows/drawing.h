// The system's drawing library, GDI+.
#pragma once

#include <memory>
#include <string>

#include <objidl.h>

#include <gdiplus.h>

#include "host/basics/result.h"

namespace host
{
// Starts the library, which can be called as long as such an object lives.
class Drawing
{
public:
    Drawing()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~Drawing() { Gdiplus::GdiplusShutdown(m_token); }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

private:
    ULONG_PTR m_token = 0;
};

// Returns the picture as the bytes of a PNG file, or a failure when memory ran out.
Result<std::string> pngOf(Gdiplus::Bitmap& bitmap);
}  // namespace host
