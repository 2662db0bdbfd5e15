// Numbers as files hold them and as they are typed and shown at the command line.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "host/text/trim.h"

namespace host
{
// Reads a number that is the whole text, apart from blanks around it; an integer in the given base.
// Nothing for any other text and for a number that the type cannot hold. A plus in front is no part
// of a number.
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
// them. Nothing for anything else, for an infinity and for a number that the type cannot hold.
std::optional<double> parseReal(std::wstring_view text);
std::optional<int> parseInteger(std::wstring_view text);

// The shortest text that reads back as the same number.
std::wstring realText(double value);
// Degrees, to the twelve digits that conversions between units leave sound.
std::wstring degreesText(double radians);
}  // namespace host
