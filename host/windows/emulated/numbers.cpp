#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <string>

#include "crt.h"
#include "shlwapi.h"

namespace
{
bool isDigit(wchar_t unit)
{
    return unit >= L'0' && unit <= L'9';
}

// The parts of a number's text as they were found, in ASCII.
struct NumberText
{
    bool negative = false;
    std::string whole;
    std::string fraction;
    std::string exponent;  // with its minus sign

    bool empty() const { return whole.empty() && fraction.empty(); }
    // Returns the power of ten of the first digit that is not zero, plus one.
    double magnitude() const;
};

std::string takeDigits(const wchar_t*& at)
{
    std::string digits;
    while (isDigit(*at))
    {
        digits += char(*at++);
    }
    return digits;
}

bool takeMinus(const wchar_t*& at)
{
    const bool minus = *at == L'-';
    if (minus || *at == L'+')
    {
        ++at;
    }
    return minus;
}

// Reads the exponent. A sign without digits is not an exponent, and from_chars stops in front of
// it.
std::string takeExponent(const wchar_t* at)
{
    if (*at != L'e' && *at != L'E' && *at != L'd' && *at != L'D')
    {
        return {};
    }
    const std::string sign = takeMinus(++at) ? "-" : "";
    return sign + takeDigits(at);
}

NumberText parse(const wchar_t* at)
{
    NumberText text;
    while (*at == L' ' || *at == L'\t')
    {
        ++at;
    }
    text.negative = takeMinus(at);
    text.whole = takeDigits(at);
    if (*at == L'.')
    {
        text.fraction = takeDigits(++at);
    }
    if (!text.empty())
    {
        text.exponent = takeExponent(at);
    }
    return text;
}

double NumberText::magnitude() const
{
    const std::string digits = whole + fraction;
    double power = 0;
    const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    if (read.ec == std::errc::result_out_of_range)
    {
        return exponent[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    }
    return double(whole.size()) - double(digits.find_first_not_of('0')) + power;
}

double value(const NumberText& text)
{
    const std::string ascii = "0" + text.whole + "." + text.fraction + "0e" + text.exponent;
    double result = 0;
    const auto read = std::from_chars(ascii.data(), ascii.data() + ascii.size(), result);
    if (read.ec == std::errc::result_out_of_range)
    {
        return text.magnitude() > 0 ? HUGE_VAL : 0;
    }
    return result;
}
}  // namespace

double _wtof(const wchar_t* text)
{
    const NumberText parts = parse(text);
    if (parts.empty())
    {
        return 0;  // a minus without digits does not make the zero negative
    }
    const double size = value(parts);
    return parts.negative ? -size : size;
}

int _wtoi(const wchar_t* text)
{
    while (*text == L' ' || (*text >= L'\t' && *text <= L'\r'))
    {
        ++text;
    }
    const bool negative = takeMinus(text);
    const std::string digits = (negative ? "-" : "") + takeDigits(text);
    int result = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), result);
    if (read.ec == std::errc::result_out_of_range)
    {
        return negative ? INT_MIN : INT_MAX;
    }
    return result;
}

int StrToIntW(PCWSTR text)
{
    if (text == nullptr)
    {
        return 0;
    }
    const bool negative = *text == L'-';
    std::uint32_t result = 0;
    for (text += negative; isDigit(*text); ++text)
    {
        result = 10 * result + (*text - L'0');
    }
    return static_cast<std::int32_t>(negative ? 0 - result : result);
}
