#include "tests/plot/picture.h"

#include <shlwapi.h>

#include "host/png/windows/drawing.h"

namespace tests
{
Picture::Picture(const std::string& bytes)
{
    const host::Drawing drawing;
    IStream* const stream =
        SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes.data()), UINT(bytes.size()));
    {
        Gdiplus::Bitmap bitmap(stream);
        m_width = int(bitmap.GetWidth());
        m_height = int(bitmap.GetHeight());
        for (int row = 0; row < m_height; ++row)
        {
            for (int column = 0; column < m_width; ++column)
            {
                Gdiplus::Color color;
                bitmap.GetPixel(column, row, &color);
                m_pixels.push_back(color.GetValue() & 0xFFFFFF);
            }
        }
    }
    stream->Release();
}
}  // namespace tests
