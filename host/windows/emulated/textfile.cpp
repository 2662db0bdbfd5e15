#include "host/windows/emulated/textfile.h"

#include "host/windows/text.h"

namespace host
{
namespace
{
template <class Unit>
std::basic_string<Unit> translated(std::basic_string_view<Unit> units)
{
    constexpr Unit endOfFile = 0x1A;
    units = units.substr(0, units.find(endOfFile));
    std::basic_string<Unit> text;
    for (std::size_t i = 0; i < units.size(); ++i)
    {
        const bool pair = units[i] == '\r' && i + 1 < units.size() && units[i + 1] == '\n';
        if (!pair)
        {
            text += units[i];
        }
    }
    return text;
}

// Half a unit at the end of a truncated file is dropped.
std::wstring fromUtf16(std::string_view bytes)
{
    std::wstring units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    {
        const auto low = static_cast<unsigned char>(bytes[i]);
        const auto high = static_cast<unsigned char>(bytes[i + 1]);
        units += wchar_t(low | high << 8);
    }
    return units;
}

std::string toUtf16(std::wstring_view units)
{
    std::string bytes;
    for (const wchar_t unit : units)
    {
        bytes += char(unit & 0xFF);
        bytes += char(unit >> 8);
    }
    return bytes;
}

bool takeMark(std::string_view& bytes, std::string_view mark)
{
    const bool there = bytes.starts_with(mark);
    bytes.remove_prefix(there ? mark.size() : 0);
    return there;
}
}  // namespace

std::string asText(std::string_view bytes)
{
    return translated(bytes);
}

std::optional<std::string> decodedUnits(std::string_view bytes, Encoding unmarked)
{
    if (takeMark(bytes, "\xFE\xFF"))
    {
        return std::nullopt;
    }
    Encoding encoding = unmarked;
    if (takeMark(bytes, "\xEF\xBB\xBF"))
    {
        encoding = Encoding::utf8;
    }
    else if (takeMark(bytes, "\xFF\xFE"))
    {
        encoding = Encoding::utf16;
    }
    const std::wstring units = encoding == Encoding::utf8 ? fromUtf8(bytes) : fromUtf16(bytes);
    return toUtf16(translated(std::wstring_view(units)));
}
}  // namespace host
