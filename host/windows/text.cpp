#include "host/windows/text.h"

#include <algorithm>

namespace host
{
namespace
{
constexpr char32_t replacement = 0xFFFD;

struct Character
{
    char32_t code;
    std::size_t length;  // in bytes or units
};

bool isLead(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isTrail(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}
bool isCharacter(char32_t code)
{
    return code <= 0x10FFFF && !isLead(code) && !isTrail(code);
}

// Returns 0 for a byte that does not begin a sequence.
std::size_t sequenceLength(unsigned char first)
{
    if (first < 0x80)
    {
        return 1;
    }
    if (first < 0xC0 || first > 0xF7)
    {
        return 0;
    }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

Character firstCharacter(std::string_view bytes)
{
    constexpr Character invalid{replacement, 1};
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const unsigned char first = bytes[0];
    const std::size_t length = sequenceLength(first);
    if (length == 0 || length > bytes.size())
    {
        return invalid;
    }
    char32_t code = length == 1 ? first : first & (0x7F >> length);
    for (const unsigned char next : bytes.substr(1, length - 1))
    {
        if ((next & 0xC0) != 0x80)
        {
            return invalid;
        }
        code = code << 6 | (next & 0x3F);
    }
    return code >= smallest[length] && isCharacter(code) ? Character{code, length} : invalid;
}

Character firstCharacter(std::wstring_view units)
{
    const char32_t first = units[0];
    const char32_t second = units.size() > 1 ? units[1] : 0;
    if (isLead(first) && isTrail(second))
    {
        return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 2};
    }
    return {isCharacter(first) ? first : replacement, 1};
}

void appendUnits(std::wstring& text, char32_t code)
{
    if (code < 0x10000)
    {
        text += wchar_t(code);
        return;
    }
    text += wchar_t(0xD800 + ((code - 0x10000) >> 10));
    text += wchar_t(0xDC00 + ((code - 0x10000) & 0x3FF));
}

void appendUtf8(std::string& bytes, char32_t code)
{
    if (code < 0x80)
    {
        bytes += char(code);
        return;
    }
    constexpr int leads[] = {0x00, 0xC0, 0xE0, 0xF0};
    const int following = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    bytes += char(leads[following] | code >> 6 * following);
    for (int shift = 6 * (following - 1); shift >= 0; shift -= 6)
    {
        bytes += char(0x80 | (code >> shift & 0x3F));
    }
}
}  // namespace

std::string toUtf8(std::wstring_view text)
{
    std::string bytes;
    while (!text.empty())
    {
        const Character character = firstCharacter(text);
        appendUtf8(bytes, character.code);
        text.remove_prefix(character.length);
    }
    return bytes;
}

std::wstring fromUtf8(std::string_view bytes)
{
    std::wstring text;
    while (!bytes.empty())
    {
        const Character character = firstCharacter(bytes);
        appendUnits(text, character.code);
        bytes.remove_prefix(character.length);
    }
    return text;
}

std::filesystem::path pathOf(std::string_view utf8)
{
    return std::u8string(utf8.begin(), utf8.end());
}

std::filesystem::path toNativePath(std::wstring_view path)
{
    std::string native = toUtf8(path);
    std::ranges::replace(native, '\\', '/');
    return pathOf(native);
}

std::wstring fromNativePath(std::string_view path)
{
    std::wstring text = fromUtf8(path);
    std::ranges::replace(text, L'/', L'\\');
    return text;
}
}  // namespace host
