// Numbers as they are typed and shown at the command line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host
{
std::wstring_view trimmed(std::wstring_view text);

// The whole text has to be the number, blanks around it apart: sign, digits, decimal point,
// exponent. Nothing for anything else, for an infinity and for a number beyond a double.
std::optional<double> parseReal(std::wstring_view text);
std::optional<int> parseInteger(std::wstring_view text);

// The shortest text that reads back as the same number.
std::wstring realText(double value);
// Degrees, to the twelve digits that conversions between units leave sound.
std::wstring degreesText(double radians);
}  // namespace host
