// Converts angles.
#pragma once

#include <numbers>

namespace host
{
constexpr double toRadians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

constexpr double toDegrees(double radians)
{
    return radians * 180 / std::numbers::pi;
}
}  // namespace host
