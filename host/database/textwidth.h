// How wide texts are: there are no fonts here.
#pragma once

#include <cstddef>

namespace host
{
// In heights of the text: six sevenths is the mean advance of a letter in the host's stroke fonts.
inline double estimatedWidth(std::size_t letters)
{
    return double(letters) * 6 / 7;
}
}  // namespace host
