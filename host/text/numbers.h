// Reads numbers from files and from the command line, and writes numbers for the command line.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "host/text/trim.h"

namespace host
{
// Reads a number that is the whole text, apart from blanks around it. `base`, if given, is the base
// of an integer. Returns no value for any other text, including a number after a plus sign, and for
// a number that the type cannot hold.
template <class Number, class... Base>
std::optional<Number> readNumber(std::string_view text, Base... base)
{
    text = trimmed(text);
    const char* const end = text.data() + text.size();
    Number number{};
    const auto [stop, error] = std::from_chars(text.data(), end, number, base...);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

// Reads a number that a person has typed: sign, digits, decimal point, exponent, with blanks around
// them. Returns no value for any other text, for an infinity and for a number that the type cannot
// hold.
std::optional<double> parseReal(std::wstring_view text);
std::optional<int> parseInteger(std::wstring_view text);

// Returns the shortest text that reads back as the same number.
std::wstring realText(double value);
// Returns an angle [rad] in degrees with twelve digits, because the conversion leaves no more
// digits sound.
std::wstring degreesText(double radians);
}  // namespace host
