// Estimates the width of texts, because the host has no fonts.
#pragma once

#include <cstddef>

namespace host
{
// Returns the width in units of the text height. Six sevenths of the height is the mean advance of
// a letter in the host's stroke fonts.
inline double estimatedWidth(std::size_t letters)
{
    return double(letters) * 6 / 7;
}
}  // namespace host
