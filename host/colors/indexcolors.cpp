#include "host/colors/indexcolors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host
{
namespace
{
Color grey(double level)
{
    return {level, level, level};
}

// Returns the pure colour at a place on a circle of 24 places: red at 0, green at 8, blue at 16.
Color hue(int place)
{
    const auto part = [place](int centre)
    {
        const int turn = std::abs(place - centre) % 24;
        const int distance = std::min(turn, 24 - turn);
        return std::clamp(2 - distance / 4.0, 0.0, 1.0);
    };
    return {part(0), part(8), part(16)};
}

// Returns a colour from 10 to 249. Each ten has one hue of the circle, in pairs of a full and a
// pale colour that get darker.
Color wheelColor(int index)
{
    const std::array<double, 5> brightness{1, 0.65, 0.5, 0.3, 0.15};
    const Color pure = hue((index - 10) / 10);
    const double bright = brightness[std::size_t(index % 10 / 2)];
    const bool pale = index % 2 != 0;
    const auto tone = [&](double part) { return bright * (pale ? 0.5 + part / 2 : part); };
    return {tone(pure.red), tone(pure.green), tone(pure.blue)};
}
}  // namespace

Color indexColor(int index)
{
    const std::array<Color, 10> first{{black,
                                       {1, 0, 0},
                                       {1, 1, 0},
                                       {0, 1, 0},
                                       {0, 1, 1},
                                       {0, 0, 1},
                                       {1, 0, 1},
                                       black,
                                       grey(0.5),
                                       grey(0.75)}};
    if (index < 0 || index > 255)
    {
        return black;
    }
    if (index < 10)
    {
        return first[std::size_t(index)];
    }
    return index < 250 ? wheelColor(index) : grey(0.2 + 0.16 * (index - 250));
}
}  // namespace host
