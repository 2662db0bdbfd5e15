#include "host/dxf/codepage.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "host/dxf/error.h"

namespace host::dxf
{
namespace
{
static_assert(sizeof(wchar_t) == 4, "a character is one wchar_t here");

constexpr wchar_t rawBytes = 0xDC00;  // plus a byte: one that means nothing in the code page

bool isHigh(wchar_t c)
{
    return 0xD800 <= c && c <= 0xDBFF;
}
bool isLow(wchar_t c)
{
    return 0xDC00 <= c && c <= 0xDFFF;
}
bool isRawByte(char32_t c)
{
    return rawBytes + 0x80 <= c && c <= rawBytes + 0xFF;
}
wchar_t joined(wchar_t high, wchar_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

std::string converterName(const Release& release, std::string_view codePage)
{
    if (release.utf8)
        return "UTF-8";
    if (codePage.empty())
        return "CP1252";

    std::string name(codePage);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::toupper(c); });
    for (const std::string_view prefix : {"ANSI_", "DOS"})
        if (name.starts_with(prefix))
            return "CP" + name.substr(prefix.size());
    return name.starts_with("ISO8859-") ? name : "unknown";
}

bool parseHex(std::wstring_view digits, unsigned& value)
{
    for (const wchar_t c : digits)
    {
        if (c > 'f' || !std::isxdigit(static_cast<int>(c)))
            return false;
        value = value * 16 + unsigned(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
    }
    return true;
}

// The character that "\U+XXXX" stands for, 0 if that is not what is at `at`.
wchar_t escaped(std::wstring_view text, std::size_t at)
{
    unsigned value = 0;
    if (text.substr(at, 3) != L"\\U+" || text.size() - at < 7 ||
        !parseHex(text.substr(at + 3, 4), value))
        return 0;
    return static_cast<wchar_t>(value);
}

// As `escaped`, and two escapes may make one character; a half of such a pair is none.
wchar_t escapedCharacter(std::wstring_view text, std::size_t at, std::size_t& length)
{
    const wchar_t first = escaped(text, at);
    length = 7;
    if (!isHigh(first))
        return isLow(first) ? 0 : first;
    const wchar_t second = escaped(text, std::min(at + length, text.size()));
    length = 14;
    return isLow(second) ? joined(first, second) : 0;
}

struct MultibytePage
{
    wchar_t digit;
    const char* name;
};

constexpr MultibytePage multibytePages[] = {
    {L'1', "CP932" },
    {L'2', "CP950" },
    {L'3', "CP949" },
    {L'4', "JOHAB" },
    {L'5', "CP936" },
};

wchar_t convertedFrom(const char* codePage, std::string bytes)
{
    const iconv_t converter = ::iconv_open("WCHAR_T", codePage);
    if (converter == iconv_t(-1))
        return 0;
    wchar_t character = 0;
    char* in = bytes.data();
    std::size_t inLeft = bytes.size();
    char* out = reinterpret_cast<char*>(&character);
    std::size_t outLeft = sizeof character;
    const bool done = ::iconv(converter, &in, &inLeft, &out, &outLeft) == 0 && outLeft == 0;
    ::iconv_close(converter);
    return done ? character : 0;
}

// The character of an East Asian code page that "\M+nXXXX" stands for, 0 if that is not what is at
// `at`.
wchar_t multibyteCharacter(std::wstring_view text, std::size_t at)
{
    if (text.substr(at, 3) != L"\\M+" || text.size() - at < 8)
        return 0;
    const auto page = std::ranges::find(multibytePages, text[at + 3], &MultibytePage::digit);
    unsigned code = 0;
    if (page == std::end(multibytePages) || !parseHex(text.substr(at + 4, 4), code))
        return 0;
    std::string bytes{static_cast<char>(code)};
    if (code > 0xFF)
        bytes.insert(bytes.begin(), static_cast<char>(code >> 8));
    return convertedFrom(page->name, bytes);
}

// The character that "^J" stands for, 0 if that is not what is at `at`.
wchar_t caretCharacter(std::wstring_view text, std::size_t at)
{
    if (text[at] != '^' || at + 1 == text.size())
        return 0;
    const wchar_t next = text[at + 1];
    if (next == ' ')
        return '^';
    return 'A' <= next && next <= '_' ? next - '@' : 0;
}

std::wstring unescaped(std::wstring_view text)
{
    std::wstring result;
    for (std::size_t at = 0, length = 1; at < text.size(); at += length)
    {
        wchar_t character = escapedCharacter(text, at, length);
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
        result += character == 0 ? text[at] : character;
    }
    return result;
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
    CodePage(release, codePageName);
    return true;
}
catch (const Error&)
{
    return false;
}

CodePage::CodePage(const Release& release, std::string_view codePageName)
{
    const std::string name = converterName(release, codePageName);
    m_toWide = ::iconv_open("WCHAR_T", name.c_str());
    m_fromWide = ::iconv_open(name.c_str(), "WCHAR_T");
    if (m_toWide == iconv_t(-1) || m_fromWide == iconv_t(-1))
        throw Error("expected a known code page, found \"" + std::string(codePageName) + '"');
}

CodePage::~CodePage()
{
    ::iconv_close(m_toWide);
    ::iconv_close(m_fromWide);
}

std::wstring CodePage::decode(std::string_view bytes) const
{
    const std::wstring text = toWide(bytes);
    return text.find_first_of(L"\\^") == text.npos ? text : unescaped(text);
}

std::wstring CodePage::toWide(std::string_view bytes) const
{
    if (std::ranges::all_of(bytes, [](char c) { return static_cast<signed char>(c) >= 0; }))
        return {bytes.begin(), bytes.end()};

    std::wstring text(bytes.size(), L'\0');
    char* in = const_cast<char*>(bytes.data());
    std::size_t inLeft = bytes.size();
    char* out = reinterpret_cast<char*>(text.data());
    std::size_t outLeft = text.size() * sizeof(wchar_t);
    while (inLeft > 0)
    {
        ::iconv(m_toWide, &in, &inLeft, &out, &outLeft);
        // Some code pages keep a letter back until they know whether an accent follows.
        ::iconv(m_toWide, nullptr, nullptr, &out, &outLeft);
        if (inLeft == 0)
            break;
        const wchar_t rawByte = rawBytes + static_cast<unsigned char>(*in++);
        --inLeft;
        out = std::copy_n(reinterpret_cast<const char*>(&rawByte), sizeof rawByte, out);
        outLeft -= sizeof rawByte;
    }
    text.resize(text.size() - outLeft / sizeof(wchar_t));
    return text;
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
            append(bytes, text[at]);
    }
    return bytes;
}

void CodePage::append(std::string& bytes, char32_t character) const
{
    if (character == '^')
        bytes += "^ ";
    else if (character < ' ')
        (bytes += '^') += static_cast<char>(character + '@');
    else if (character < 0x80)
        bytes += static_cast<char>(character);
    else if (isRawByte(character))
        bytes += static_cast<char>(character - rawBytes);
    else
        appendConverted(bytes, character > 0x10FFFF ? 0xFFFD : character);
}

void CodePage::appendConverted(std::string& bytes, char32_t character) const
{
    char converted[8];
    char* in = reinterpret_cast<char*>(&character);
    std::size_t inLeft = sizeof character;
    char* out = converted;
    std::size_t outLeft = sizeof converted;
    const bool done = ::iconv(m_fromWide, &in, &inLeft, &out, &outLeft) == 0;
    if (done)
        bytes.append(converted, out);
    else
        appendEscape(bytes, character);
}
}  // namespace host::dxf
