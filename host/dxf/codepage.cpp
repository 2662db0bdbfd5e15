#include "host/dxf/codepage.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "host/dxf/error.h"
#include "host/dxf/tag.h"

namespace host::dxf
{
namespace
{
// U+DC00 plus a byte stands for a byte that has no meaning in the code page.
constexpr char32_t rawBytes = 0xDC00;

bool isHigh(char32_t c)
{
    return 0xD800 <= c && c <= 0xDBFF;
}
bool isLow(char32_t c)
{
    return 0xDC00 <= c && c <= 0xDFFF;
}
bool isRawByte(char32_t c)
{
    return rawBytes + 0x80 <= c && c <= rawBytes + 0xFF;
}
char32_t joined(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

std::string converterName(const Release& release, std::string_view codePage)
{
    if (release.utf8)
    {
        return "UTF-8";
    }
    if (codePage.empty())
    {
        return "CP1252";
    }

    std::string name(codePage);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
    for (const std::string_view prefix : {"ANSI_", "DOS"})
    {
        if (name.starts_with(prefix))
        {
            return "CP" + name.substr(prefix.size());
        }
    }
    return name.starts_with("ISO8859-") ? name : "unknown";
}

bool parseHex(std::u32string_view digits, unsigned& value)
{
    for (const char32_t c : digits)
    {
        if (c > 'f' || !std::isxdigit(static_cast<int>(c)))
        {
            return false;
        }
        value = value * 16 + unsigned(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
    }
    return true;
}

// Returns the character for which "\U+XXXX" at `at` stands, or 0 for any other text.
char32_t escaped(std::u32string_view text, std::size_t at)
{
    unsigned value = 0;
    if (text.substr(at, 3) != U"\\U+" || text.size() - at < 7 ||
        !parseHex(text.substr(at + 3, 4), value))
    {
        return 0;
    }
    return value;
}

// Returns the same as `escaped`, but joins two escapes that are a surrogate pair into one
// character. Returns 0 for half a pair.
char32_t escapedCharacter(std::u32string_view text, std::size_t at, std::size_t& length)
{
    const char32_t first = escaped(text, at);
    length = 7;
    if (!isHigh(first))
    {
        return isLow(first) ? 0 : first;
    }
    const char32_t second = escaped(text, std::min(at + length, text.size()));
    length = 14;
    return isLow(second) ? joined(first, second) : 0;
}

struct MultibytePage
{
    char32_t digit;
    const char* name;
};

constexpr MultibytePage multibytePages[] = {
    // clang-format off
    {U'1', "CP932"},
    {U'2', "CP950"},
    {U'3', "CP949"},
    {U'4', "JOHAB"},
    {U'5', "CP936"},
    // clang-format on
};

char32_t convertedFrom(const char* codePage, const std::string& bytes)
{
    const std::unique_ptr<ByteConverter> converter = ByteConverter::open(codePage);
    std::u32string character;
    const bool done = converter && converter->decode(bytes, character) == bytes.size();
    return done && character.size() == 1 ? character[0] : 0;
}

// Returns the character of an East Asian code page for which "\M+nXXXX" at `at` stands, or 0 for
// any other text.
char32_t multibyteCharacter(std::u32string_view text, std::size_t at)
{
    if (text.substr(at, 3) != U"\\M+" || text.size() - at < 8)
    {
        return 0;
    }
    const auto page = std::ranges::find(multibytePages, text[at + 3], &MultibytePage::digit);
    unsigned code = 0;
    if (page == std::end(multibytePages) || !parseHex(text.substr(at + 4, 4), code))
    {
        return 0;
    }
    std::string bytes{static_cast<char>(code)};
    if (code > 0xFF)
    {
        bytes.insert(bytes.begin(), static_cast<char>(code >> 8));
    }
    return convertedFrom(page->name, bytes);
}

// Returns the character for which a caret and a letter at `at` stand, such as "^J", or 0 for any
// other text.
char32_t caretCharacter(std::u32string_view text, std::size_t at)
{
    if (text[at] != '^' || at + 1 == text.size())
    {
        return 0;
    }
    const char32_t next = text[at + 1];
    if (next == ' ')
    {
        return '^';
    }
    return 'A' <= next && next <= '_' ? next - '@' : 0;
}

std::u32string unescaped(std::u32string_view text)
{
    std::u32string result;
    for (std::size_t at = 0, length = 1; at < text.size(); at += length)
    {
        char32_t character = escapedCharacter(text, at, length);
        if (character == 0)
        {
            character = multibyteCharacter(text, at);
            length = 8;
        }
        if (character == 0)
        {
            character = caretCharacter(text, at);
            length = character == 0 ? 1 : 2;
        }
        result += character != 0 ? character : text[at] == lineFeedInText ? U'\n' : text[at];
    }
    return result;
}

// Converts the text to wide text. A character may take two units where a wchar_t has only sixteen
// bits.
std::wstring wide(std::u32string_view text)
{
    if (sizeof(wchar_t) == sizeof(char32_t))
    {
        return {text.begin(), text.end()};
    }
    std::wstring units;
    for (const char32_t character : text)
    {
        const char32_t rest = character - 0x10000;
        if (character > 0xFFFF)
        {
            units += static_cast<wchar_t>(0xD800 + (rest >> 10));
        }
        units += static_cast<wchar_t>(character > 0xFFFF ? 0xDC00 + (rest & 0x3FF) : character);
    }
    return units;
}

void appendEscape(std::string& bytes, char32_t character)
{
    if (character > 0xFFFF)
    {
        const char32_t rest = character - 0x10000;
        appendEscape(bytes, 0xD800 + (rest >> 10));
        return appendEscape(bytes, 0xDC00 + (rest & 0x3FF));
    }
    char text[8];
    std::snprintf(text, sizeof text, "\\U+%04X", static_cast<unsigned>(character));
    bytes += text;
}
}  // namespace

bool CodePage::isKnown(const Release& release, std::string_view codePageName)
try
{
    const CodePage known(release, codePageName);
    return true;
}
catch (const Error&)
{
    return false;
}

CodePage::CodePage(const Release& release, std::string_view codePageName)
{
    m_converter = ByteConverter::open(converterName(release, codePageName));
    if (!m_converter)
    {
        throw Error("expected a known code page, found \"" + std::string(codePageName) + '"');
    }
}

std::wstring CodePage::decode(std::string_view bytes) const
{
    const bool isAscii =
        std::ranges::all_of(bytes, [](char c) { return static_cast<signed char>(c) >= 0; });
    constexpr std::string_view marks("\\^\0", 3);
    static_assert(marks.back() == lineFeedInText);
    if (isAscii && bytes.find_first_of(marks) == bytes.npos)
    {
        return {bytes.begin(), bytes.end()};
    }
    return wide(unescaped(isAscii ? std::u32string(bytes.begin(), bytes.end()) : converted(bytes)));
}

std::u32string CodePage::converted(std::string_view bytes) const
{
    std::u32string text;
    for (;;)
    {
        bytes.remove_prefix(m_converter->decode(bytes, text));
        if (bytes.empty())
        {
            return text;
        }
        text += rawBytes + static_cast<unsigned char>(bytes[0]);
        bytes.remove_prefix(1);
    }
}

std::string CodePage::encode(std::wstring_view text) const
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (at + 1 < text.size() && isHigh(text[at]) && isLow(text[at + 1]))
        {
            append(bytes, joined(text[at], text[at + 1]));
            ++at;
        }
        else
        {
            append(bytes, text[at]);
        }
    }
    return bytes;
}

void CodePage::append(std::string& bytes, char32_t character) const
{
    if (character == '^')
    {
        bytes += "^ ";
    }
    else if (character < ' ')
    {
        (bytes += '^') += static_cast<char>(character + '@');
    }
    else if (character < 0x80)
    {
        bytes += static_cast<char>(character);
    }
    else if (isRawByte(character))
    {
        bytes += static_cast<char>(character - rawBytes);
    }
    else
    {
        appendConverted(bytes, character > 0x10FFFF ? 0xFFFD : character);
    }
}

void CodePage::appendConverted(std::string& bytes, char32_t character) const
{
    if (const auto converted = m_converter->encode(character))
    {
        bytes += *converted;
    }
    else
    {
        appendEscape(bytes, character);
    }
}
}  // namespace host::dxf
