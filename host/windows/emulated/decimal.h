// Writes the decimal digits of doubles as the module's C runtime does.
#pragma once

#include <string>

namespace host
{
// Returns a number with a fixed count of decimals, and without a point if `decimals` is 0. `size`
// must be finite; neither argument may be negative. An exact tie is rounded up. Digits after the
// seventeenth significant digit are zeros.
std::string fixedDigits(double size, int decimals);
}  // namespace host
