// Reads a PNG file as pixels with the system's drawing library.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

namespace tests
{
class Picture
{
public:
    // Reads the bytes of a file. The picture has no size when the bytes are not a picture.
    explicit Picture(const std::string& bytes);

    int width() const { return m_width; }
    int height() const { return m_height; }
    // Returns the colour 0xRRGGBB at a place, given from the lower left corner in parts of the
    // sheet from 0 to 1.
    unsigned at(double x, double y) const
    {
        const int column = std::min(int(x * m_width), m_width - 1);
        const int row = std::min(int((1 - y) * m_height), m_height - 1);
        return m_pixels.at(std::size_t(row) * m_width + column);
    }

private:
    int m_width = 0;
    int m_height = 0;
    std::vector<unsigned> m_pixels;  // row by row from the upper left corner
};
}  // namespace tests
