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
#include "host/dxf/schema/structure.h"
#include "host/dxf/tag.h"
#include "host/text/numbers.h"

namespace host::dxf
{
namespace
{
constexpr std::string_view sentinel("AutoCAD Binary DXF\r\n\x1a\0", 22);
constexpr int longCode = 255;              // a first byte of 255: the code follows in two bytes
constexpr std::size_t longestChunk = 255;  // one byte holds the length of a chunk

class Reader
{
public:
    Reader(std::string_view bytes, const std::string& name) : m_bytes(bytes), m_name(name) {}

    AsciiForm read();

private:
    bool readTag();
    int readCode();
    void readValue(ValueType type);
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
    // The first tag is 0 SECTION. Its second byte shows the size of a code: it belongs to a
    // two-byte code or to the word.
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

// Reads the next tag. Returns false after the end mark, because bytes behind it are not tags.
bool Reader::readTag()
{
    m_form.offsets.push_back(m_at);
    const int code = readCode();
    const ValueType type = valueType(Code(code));
    if (type == ValueType::none)
    {
        m_at = m_form.offsets.back();
        refuse("a group code of DXF", std::to_string(code));
    }
    const std::string digits = std::to_string(code);
    m_form.text.append(digits.size() < 3 ? 3 - digits.size() : 0, ' ').append(digits) += '\n';
    const std::size_t value = m_form.text.size();
    readValue(type);
    m_form.text += '\n';
    return Code(code) != schema::recordType ||
           m_form.text.compare(value, std::string::npos, "EOF\n") != 0;
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
    // Saving would write such a code in one byte.
    if (0 <= inTwoBytes && inTwoBytes < longCode)
    {
        m_at -= 3;
        refuse("a group code of DXF in one byte", std::to_string(inTwoBytes) + " in three");
    }
    return inTwoBytes;
}

void Reader::readValue(ValueType type)
{
    switch (type)
    {
        case ValueType::real:
            return readReal();
        case ValueType::int8:
            return readInteger<std::uint8_t>();
        case ValueType::int16:
            return readInteger<std::int16_t>();
        case ValueType::int32:
            return readInteger<std::int32_t>();
        case ValueType::int64:
            return readInteger<std::int64_t>();
        case ValueType::chunk:
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
    const std::optional<Number> number = readNumber<Number>(value);
    if (!number)
    {
        cannotHold(code, value);
    }
    return *number;
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
    switch (valueType(Code(code)))
    {
        case ValueType::real:
            return put(parsed<double>(code, value));
        case ValueType::int8:
            return put(parsed<std::uint8_t>(code, value));
        case ValueType::int16:
            return put(parsed<std::int16_t>(code, value));
        case ValueType::int32:
            return put(parsed<std::int32_t>(code, value));
        case ValueType::int64:
            return put(parsed<std::int64_t>(code, value));
        case ValueType::chunk:
        {
            const std::string chunk = chunkOf(code, value);
            m_binary += char(chunk.size());
            m_binary += chunk;
            return;
        }
        default:
            putText(value);
            m_ended = Code(code) == schema::recordType && value == schema::endOfFile;
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
