#include "host/editor/scripttext.h"

#include <algorithm>

#include "host/windows/text.h"

namespace host
{
namespace
{
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleMark = "\xFF\xFE";
constexpr std::string_view bigMark = "\xFE\xFF";

Failure expected(const std::string& what, const std::string& name, std::ptrdiff_t line)
{
    return {name + ": line " + std::to_string(line) + ": expected " + what};
}

std::wstring unitsOf(std::string_view bytes, bool bigFirst)
{
    std::wstring units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units += wchar_t(bigFirst ? first << 8 | second : second << 8 | first);
    }
    return units;
}

// Converts UTF-16 to UTF-8. Converts the text back as well: a half character does not survive this.
Result<std::string> fromUtf16(std::string_view bytes, bool bigFirst, const std::string& name)
{
    const std::wstring units = unitsOf(bytes, bigFirst);
    const std::string text = toUtf8(units);
    const std::wstring again = fromUtf8(text);
    const auto [wrong, ignored] = std::ranges::mismatch(units, again);
    if (wrong != units.end() || bytes.size() % 2 != 0)
    {
        const std::ptrdiff_t line = 1 + std::count(units.begin(), wrong, L'\n');
        return expected("whole characters of UTF-16", name, line);
    }
    return text;
}

Result<std::string> fromUtf8Text(std::string_view bytes, const std::string& name)
{
    int number = 0;
    for (std::size_t at = 0; at < bytes.size();)
    {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        const Result<> checked = checkUtf8(bytes.substr(at, end - at), name, ++number);
        if (!checked)
        {
            return checked.failure();
        }
        at = end + 1;
    }
    return std::string(bytes);
}
}  // namespace

bool beginsAsUtf16(std::string_view bytes)
{
    return bytes.starts_with(littleMark) || bytes.starts_with(bigMark);
}

Result<std::string> scriptText(std::string_view bytes, const std::string& name)
{
    if (beginsAsUtf16(bytes))
    {
        return fromUtf16(bytes.substr(2), bytes.starts_with(bigMark), name);
    }
    return fromUtf8Text(bytes.substr(bytes.starts_with(utf8Mark) ? utf8Mark.size() : 0), name);
}

// A line that changes when it is converted and converted back holds bytes that are not UTF-8. A
// zero is refused because UTF-16 without its mark holds zeros and a text does not.
Result<> checkUtf8(std::string_view line, const std::string& name, int number)
{
    if (line.find('\0') != line.npos || toUtf8(fromUtf8(line)) != line)
    {
        return expected("UTF-8, or UTF-16 behind a byte-order mark", name, number);
    }
    return Done{};
}
}  // namespace host
