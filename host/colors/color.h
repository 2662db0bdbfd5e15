// A colour of a picture.
#pragma once

namespace host
{
// Red, green and blue, each from 0 to 1.
struct Color
{
    double red;
    double green;
    double blue;
};

inline constexpr Color black{0, 0, 0};
inline constexpr Color white{1, 1, 1};
}  // namespace host
