#include "host/editor/pointtext.h"

#include <cmath>
#include <vector>

#include "host/basics/angle.h"
#include "host/text/numbers.h"

namespace host
{
namespace
{
std::optional<std::vector<double>> parseNumbers(std::wstring_view text, wchar_t separator)
{
    std::vector<double> numbers;
    for (std::size_t start = 0; start <= text.size();)
    {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        const std::optional<double> number = parseReal(text.substr(start, end - start));
        if (!number)
        {
            return std::nullopt;
        }
        numbers.push_back(*number);
        start = end + 1;
    }
    return numbers;
}

bool parsePolar(std::wstring_view text, TypedPoint& point)
{
    const auto numbers = parseNumbers(text, L'<');
    if (!numbers || numbers->size() != 2)
    {
        return false;
    }
    const Direction direction = directionOf(numbers->at(1));
    point.coordinates = {numbers->at(0) * direction.x, numbers->at(0) * direction.y, 0};
    return true;
}

bool parseCoordinates(std::wstring_view text, TypedPoint& point)
{
    const auto numbers = parseNumbers(text, L',');
    if (!numbers || numbers->size() < 2 || numbers->size() > 3)
    {
        return false;
    }
    point.hasZ = numbers->size() == 3;
    point.coordinates = {numbers->at(0), numbers->at(1), point.hasZ ? numbers->at(2) : 0};
    return true;
}
}  // namespace

std::optional<TypedPoint> parsePoint(std::wstring_view text)
{
    TypedPoint point;
    text = trimmed(text);
    if (text.starts_with(L'@') || text.starts_with(L'*'))
    {
        point.relative = text.front() == L'@';
        point.world = !point.relative;
        text = trimmed(text.substr(1));
    }
    if (text.empty())
    {
        return point.relative ? std::optional(point) : std::nullopt;
    }
    const bool polar = text.find(L'<') != text.npos;
    const bool understood = polar ? parsePolar(text, point) : parseCoordinates(text, point);
    return understood ? std::optional(point) : std::nullopt;
}

Direction directionOf(double degrees)
{
    const double turn = std::fmod(degrees, 360);
    const double quarter = turn / 90;
    if (quarter == std::trunc(quarter))
    {
        static const Direction exact[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
        return exact[(int(quarter) + 4) % 4];
    }
    const double radians = toRadians(turn);
    return {std::cos(radians), std::sin(radians)};
}
}  // namespace host
