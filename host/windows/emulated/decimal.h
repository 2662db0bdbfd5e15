// Decimal digits of doubles as the module's C runtime writes them.
#pragma once

#include <string>

namespace host
{
// A finite number, not below zero, with a fixed count of decimals (not below zero either), no point
// without decimals. An exact tie goes up; digits after the seventeenth significant one are zeros.
std::string fixedDigits(double size, int decimals);
}  // namespace host
