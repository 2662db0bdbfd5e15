// The system's drawing library, GDI+.
#pragma once

#include <memory>

#include <objidl.h>

#include <gdiplus.h>

namespace host
{
inline constexpr CLSID pngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}
};

// It can be called for as long as one of these lives.
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
}  // namespace host
