#include "host/pictures/bitmap.h"

#include <cstdint>
#include <cstring>
#include <optional>

namespace host
{
namespace
{
// The fields of a BITMAPINFOHEADER that the conversion needs.
struct Header
{
    std::uint32_t size;
    std::int32_t width;
    std::int32_t height;
    std::uint16_t planes;
    std::uint16_t bits;
    std::uint32_t compression;
    std::uint32_t imageSize;
    std::int32_t resolution[2];
    std::uint32_t colorsUsed;
    std::uint32_t colorsImportant;
};

class Bitmap
{
public:
    static std::optional<Bitmap> read(std::span<const std::byte> bytes);

    int width() const { return m_header.width; }
    int height() const { return m_header.height; }
    std::uint32_t argb(int x, int y) const;

private:
    std::size_t paletteSize() const;
    std::size_t rowSize() const;
    std::uint32_t rgbAt(std::size_t offset) const;
    std::uint32_t rgb(int x, int y) const;

    Header m_header;
    std::span<const std::byte> m_bytes;
};

std::optional<Bitmap> Bitmap::read(std::span<const std::byte> bytes)
{
    Bitmap bitmap;
    if (bytes.size() < sizeof(Header))
    {
        return std::nullopt;
    }
    const Header& header = bitmap.m_header;
    std::memcpy(&bitmap.m_header, bytes.data(), sizeof(Header));
    bitmap.m_bytes = bytes;
    const bool known = header.size == sizeof(Header) && header.compression == 0 &&
                       (header.bits == 4 || header.bits == 8 || header.bits == 24);
    const bool sensible = header.width > 0 && header.width < 4096 && header.height > 0 &&
                          header.height < 4096 && header.colorsUsed <= 256;
    if (!known || !sensible ||
        bytes.size() < sizeof(Header) + bitmap.paletteSize() * 4 +
                           bitmap.rowSize() * std::size_t(header.height))
    {
        return std::nullopt;
    }
    return bitmap;
}

std::size_t Bitmap::paletteSize() const
{
    const bool full = m_header.colorsUsed == 0 && m_header.bits <= 8;
    return full ? std::size_t(1) << m_header.bits : m_header.colorsUsed;
}

std::size_t Bitmap::rowSize() const
{
    return (std::size_t(m_header.width) * m_header.bits + 31) / 32 * 4;
}

std::uint32_t Bitmap::rgbAt(std::size_t offset) const
{
    std::uint32_t value = 0;
    std::memcpy(&value, m_bytes.data() + offset, 3);  // in the order blue, green, red
    return value;
}

std::uint32_t Bitmap::rgb(int x, int y) const
{
    const std::size_t row =
        sizeof(Header) + paletteSize() * 4 + rowSize() * std::size_t(m_header.height - 1 - y);
    const auto column = std::size_t(x);
    if (m_header.bits == 24)
    {
        return rgbAt(row + column * 3);
    }
    const auto packed = std::to_integer<unsigned>(m_bytes[row + column * m_header.bits / 8]);
    const unsigned nibble = column % 2 == 0 ? packed >> 4 : packed & 0xF;
    const unsigned index = m_header.bits == 4 ? nibble : packed;
    return index < paletteSize() ? rgbAt(sizeof(Header) + index * 4) : 0;
}

std::uint32_t Bitmap::argb(int x, int y) const
{
    const std::uint32_t color = rgb(x, y);
    return color == 0xC0C0C0 ? 0 : 0xFF000000 | color;
}
}  // namespace

Image imageOfBitmap(std::span<const std::byte> bytes)
{
    Image image(nullptr, cairo_surface_destroy);
    const std::optional<Bitmap> bitmap = Bitmap::read(bytes);
    if (!bitmap)
    {
        return image;
    }
    image.reset(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, bitmap->width(), bitmap->height()));
    unsigned char* const first = cairo_image_surface_get_data(image.get());
    const int stride = cairo_image_surface_get_stride(image.get());
    for (int y = 0; y < bitmap->height(); ++y)
    {
        for (int x = 0; x < bitmap->width(); ++x)
        {
            const std::uint32_t color = bitmap->argb(x, y);
            std::memcpy(first + y * stride + x * 4, &color, sizeof color);
        }
    }
    cairo_surface_mark_dirty(image.get());
    return image;
}
}  // namespace host
