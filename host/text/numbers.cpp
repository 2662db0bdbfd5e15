#include "host/text/numbers.h"

#include <cmath>

#include "host/basics/angle.h"

namespace host
{
namespace
{
// Returns the text without blanks around it and without a leading plus; an empty text if a
// character in it cannot belong to a number.
std::string numberCharacters(std::wstring_view text)
{
    text = trimmed(text);
    std::string characters;
    for (wchar_t unit : text)
    {
        if (std::wstring_view(L"0123456789+-.eE").find(unit) == std::wstring_view::npos)
        {
            return {};
        }
        characters += char(unit);
    }
    // A number has at most one sign, and readNumber refuses a plus.
    const bool plus = characters.starts_with('+') && !characters.starts_with("+-");
    return plus ? characters.substr(1) : characters;
}

std::wstring widen(const char* begin, const char* end)
{
    return {begin, end};
}
}  // namespace

std::optional<double> parseReal(std::wstring_view text)
{
    return readNumber<double>(numberCharacters(text));
}

std::optional<int> parseInteger(std::wstring_view text)
{
    return readNumber<int>(numberCharacters(text));
}

std::wstring realText(double value)
{
    char buffer[64];
    const double size = std::fabs(value);
    const bool plain = size == 0 || (size >= 1e-6 && size < 1e16);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    // Adding zero turns a negative zero into a positive zero.
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, value + 0.0, format);
    return widen(buffer, written.ptr);
}

std::wstring degreesText(double radians)
{
    char buffer[64];
    const double degrees = toDegrees(radians) + 0.0;
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, degrees, std::chars_format::general, 12);
    return widen(buffer, written.ptr);
}
}  // namespace host
