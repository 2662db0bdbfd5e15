#include "host/dxf/binaryform.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <limits>
#include <optional>
#include <stdexcept>
#include <utility>

#include "host/dxf/error.h"
#include "host/dxf/tag.h"

namespace host::dxf
{
namespace
{
constexpr std::string_view sentinel("AutoCAD Binary DXF\r\n\x1a\0", 22);
constexpr int longCode = 255;              // of one byte: the code follows in two
constexpr std::size_t longestChunk = 255;  // its length is one byte

enum class Kind
{
    text,
    real,
    int8,
    int16,
    int32,
    int64,
    chunk,
    unknown
};

struct CodeRange
{
    int first;
    int last;
    Kind kind;
};

// The value types of the group codes; a code that stands in two ranges is what the first one says.
constexpr CodeRange codeRanges[] = {
    {0, 9, Kind::text},        {10, 59, Kind::real},      {60, 79, Kind::int16},
    {90, 99, Kind::int32},     {100, 109, Kind::text},    {110, 149, Kind::real},
    {160, 169, Kind::int64},   {170, 179, Kind::int16},   {210, 239, Kind::real},
    {270, 289, Kind::int16},   {290, 299, Kind::int8},    {300, 309, Kind::text},
    {310, 319, Kind::chunk},   {320, 369, Kind::text},    {370, 389, Kind::int16},
    {390, 399, Kind::text},    {400, 409, Kind::int16},   {410, 419, Kind::text},
    {420, 429, Kind::int32},   {430, 439, Kind::text},    {440, 459, Kind::int32},
    {460, 469, Kind::real},    {470, 481, Kind::text},    {999, 999, Kind::text},
    {1004, 1004, Kind::chunk}, {1000, 1009, Kind::text},  {1010, 1059, Kind::real},
    {1060, 1070, Kind::int16}, {1071, 1071, Kind::int32},
};

Kind kindOf(int code)
{
    const auto range = std::ranges::find_if(
        codeRanges, [code](const CodeRange& r) { return r.first <= code && code <= r.last; });
    return range != std::end(codeRanges) ? range->kind : Kind::unknown;
}

class Reader
{
public:
    Reader(std::string_view bytes, const std::string& name) : m_bytes(bytes), m_name(name) {}

    AsciiForm read();

private:
    bool readTag();
    int readCode();
    void readValue(Kind kind);
    void readText();
    void readReal();
    void readChunk();
    template <class Number>
    void readInteger();
    template <class Number>
    Number take();
    std::string_view take(std::size_t size);
    [[noreturn]] void refuse(std::string_view expected, std::string_view found) const;

    std::string_view m_bytes;
    const std::string& m_name;
    std::size_t m_at = sentinel.size();
    AsciiForm m_form{};
};

AsciiForm Reader::read()
{
    // The first tag is 0 SECTION: the second byte belongs to the code or to the word.
    const std::size_t second = sentinel.size() + 1;
    m_form.codeSize = second < m_bytes.size() && m_bytes[second] != 0 ? 1 : 2;
    m_form.text.reserve(m_bytes.size() * 2);
    while (m_at < m_bytes.size() && readTag())
    {
    }
    m_form.offsets.push_back(m_at);
    m_form.text += m_bytes.substr(m_at);
    return std::move(m_form);
}

// False after the end mark; what may stand behind it is no tag.
bool Reader::readTag()
{
    m_form.offsets.push_back(m_at);
    const int code = readCode();
    const Kind kind = kindOf(code);
    if (kind == Kind::unknown)
    {
        m_at = m_form.offsets.back();
        refuse("a group code of DXF", std::to_string(code));
    }
    const std::string digits = std::to_string(code);
    m_form.text.append(digits.size() < 3 ? 3 - digits.size() : 0, ' ').append(digits) += '\n';
    const std::size_t value = m_form.text.size();
    readValue(kind);
    m_form.text += '\n';
    return code != 0 || m_form.text.compare(value, std::string::npos, "EOF\n") != 0;
}

int Reader::readCode()
{
    if (m_form.codeSize == 2)
    {
        return take<std::int16_t>();
    }
    const int code = take<std::uint8_t>();
    if (code != longCode)
    {
        return code;
    }
    const int inTwoBytes = take<std::int16_t>();
    if (0 <= inTwoBytes && inTwoBytes < longCode)  // it would be saved as another one
    {
        m_at -= 3;
        refuse("a group code of DXF in one byte", std::to_string(inTwoBytes) + " in three");
    }
    return inTwoBytes;
}

void Reader::readValue(Kind kind)
{
    switch (kind)
    {
        case Kind::real:
            return readReal();
        case Kind::int8:
            return readInteger<std::uint8_t>();
        case Kind::int16:
            return readInteger<std::int16_t>();
        case Kind::int32:
            return readInteger<std::int32_t>();
        case Kind::int64:
            return readInteger<std::int64_t>();
        case Kind::chunk:
            return readChunk();
        default:
            return readText();
    }
}

void Reader::readText()
{
    const std::size_t end = m_bytes.find('\0', m_at);
    if (end == m_bytes.npos)
    {
        refuse("the end of a text", "the end of the file");
    }
    const std::size_t start = m_form.text.size();
    m_form.text += take(end - m_at);
    std::replace(m_form.text.begin() + std::ptrdiff_t(start), m_form.text.end(), '\n',
                 lineFeedInText);
    ++m_at;
}

void Reader::readReal()
{
    const auto value = take<double>();
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    double back = 0;
    std::from_chars(digits, end, back);
    if (std::bit_cast<std::uint64_t>(back) != std::bit_cast<std::uint64_t>(value))
    {
        m_at -= sizeof value;
        refuse("a number", "none");
    }
    m_form.text.append(digits, end);
}

void Reader::readChunk()
{
    const char hex[] = "0123456789ABCDEF";
    for (const char byte : take(take<std::uint8_t>()))
    {
        const auto bits = static_cast<unsigned char>(byte);
        m_form.text += hex[bits >> 4];
        m_form.text += hex[bits & 15];
    }
}

template <class Number>
void Reader::readInteger()
{
    m_form.text += std::to_string(take<Number>());
}

template <class Number>
Number Reader::take()
{
    static_assert(std::endian::native == std::endian::little, "the file's order of bytes");
    Number number;
    std::memcpy(&number, take(sizeof number).data(), sizeof number);
    return number;
}

std::string_view Reader::take(std::size_t size)
{
    if (size > m_bytes.size() - m_at)
    {
        refuse("a whole value", "the end of the file");
    }
    m_at += size;
    return m_bytes.substr(m_at - size, size);
}

void Reader::refuse(std::string_view expected, std::string_view found) const
{
    throw Error(m_name + ": offset " + std::to_string(m_at) + ": expected " +
                std::string(expected) + ", found " + std::string(found));
}

[[noreturn]] void cannotHold(int code, std::string_view value)
{
    throw std::domain_error("group code " + std::to_string(code) + " cannot hold \"" +
                            std::string(value) + '"');
}

template <class Number>
Number parsed(int code, std::string_view value)
{
    const std::string_view digits = trimmed(value);
    Number number{};
    const auto end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end)
    {
        cannotHold(code, value);
    }
    return number;
}

std::optional<unsigned> hexDigit(char c)
{
    const std::size_t digit = std::string_view("0123456789ABCDEFabcdef").find(c);
    if (digit == std::string_view::npos)
    {
        return std::nullopt;
    }
    return unsigned(digit < 16 ? digit : digit - 6);
}

std::string chunkOf(int code, std::string_view digits)
{
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
    {
        const auto high = hexDigit(digits[i]);
        const auto low = hexDigit(digits[i + 1]);
        if (!high || !low)
        {
            cannotHold(code, digits);
        }
        bytes += char(*high << 4 | *low);
    }
    if (digits.size() % 2 != 0 || bytes.size() > longestChunk)
    {
        cannotHold(code, digits);
    }
    return bytes;
}
}  // namespace

bool isBinary(std::string_view bytes)
{
    return bytes.starts_with(sentinel);
}

AsciiForm asciiForm(std::string_view binary, const std::string& name)
{
    return Reader(binary, name).read();
}

BinaryEncoder::BinaryEncoder(Drain drain, int codeSize)
    : m_drain(std::move(drain)), m_codeSize(codeSize), m_binary(sentinel)
{
}

void BinaryEncoder::take(std::string_view ascii)
{
    m_pending += ascii;
    std::string_view rest = m_pending;
    while (!m_ended)
    {
        const std::size_t code = rest.find('\n');
        const std::size_t value = code == rest.npos ? code : rest.find('\n', code + 1);
        if (value == rest.npos)
        {
            break;
        }
        encodeTag(rest.substr(0, code), rest.substr(code + 1, value - code - 1));
        rest.remove_prefix(value + 1);
    }
    if (m_ended)
    {
        m_binary += std::exchange(rest, {});
    }
    m_pending.erase(0, m_pending.size() - rest.size());
    m_drain(m_binary);
    m_binary.clear();
}

void BinaryEncoder::finish()
{
    if (!m_binary.empty())
    {
        m_drain(m_binary);
    }
}

void BinaryEncoder::encodeTag(std::string_view codeText, std::string_view value)
{
    const int code = parsed<int>(0, codeText);
    putCode(code);
    switch (kindOf(code))
    {
        case Kind::real:
            return put(parsed<double>(code, value));
        case Kind::int8:
            return put(parsed<std::uint8_t>(code, value));
        case Kind::int16:
            return put(parsed<std::int16_t>(code, value));
        case Kind::int32:
            return put(parsed<std::int32_t>(code, value));
        case Kind::int64:
            return put(parsed<std::int64_t>(code, value));
        case Kind::chunk:
        {
            const std::string chunk = chunkOf(code, value);
            m_binary += char(chunk.size());
            m_binary += chunk;
            return;
        }
        default:
            putText(value);
            m_ended = code == 0 && value == "EOF";
    }
}

void BinaryEncoder::putText(std::string_view value)
{
    const std::size_t start = m_binary.size();
    m_binary += value;
    std::replace(m_binary.begin() + std::ptrdiff_t(start), m_binary.end(), lineFeedInText, '\n');
    m_binary += '\0';
}

void BinaryEncoder::putCode(int code)
{
    if (m_codeSize == 2)
    {
        return put(std::int16_t(code));
    }
    if (code < longCode)
    {
        return put(std::uint8_t(code));
    }
    put(std::uint8_t(longCode));
    put(std::int16_t(code));
}

template <class Number>
void BinaryEncoder::put(Number number)
{
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    m_binary.append(bytes, sizeof bytes);
}
}  // namespace host::dxf
