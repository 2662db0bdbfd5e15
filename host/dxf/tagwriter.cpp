#include "host/dxf/tagwriter.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "host/dxf/schema/code.h"

namespace host::dxf
{
namespace
{
// Room for any tag except a text: the code's line, a number and a line ending.
constexpr std::size_t slack = 64;
// Room for the six numbers of a record and the bytes between them.
constexpr std::size_t numbersSlack = 6 * slack;

// Returns the width of a padded integer. The width shows how many bytes a reader needs for it.
unsigned char integerWidth(Code code)
{
    switch (valueType(code))
    {
        case ValueType::int32:
            return 9;
        case ValueType::int64:
            return 18;
        default:
            return 6;
    }
}

char* appendReal(char* at, double value)
{
    if (!std::isfinite(value))
    {
        throw std::domain_error("a number is not finite");
    }

    const double magnitude = std::fabs(value);
    // Whole numbers are common in drawings and much faster as integers.
    if (magnitude < 1e15 && value == std::trunc(value))
    {
        at = std::to_chars(at, at + slack, static_cast<std::int64_t>(value)).ptr;
        return std::copy_n(".0", 2, at);
    }
    // Within these bounds plain digits are easier to read than an exponent, and hardly longer.
    if (1e-5 <= magnitude && magnitude < 1e15)
    {
        return std::to_chars(at, at + slack, value, std::chars_format::fixed).ptr;
    }
    return std::to_chars(at, at + slack, value, std::chars_format::scientific).ptr;
}
// Computes eight digits at once, one in each byte of `digits`: the upper half of the number goes to
// the upper half of the word, then the quarters and the eighths are treated in the same way.
std::uint64_t eightDigits(std::uint32_t value)
{
    std::uint64_t digits = value;
    digits = (digits | digits << 16) & 0x0000FFFF0000FFFF;
    digits = (digits | digits << 8) & 0x00FF00FF00FF00FF;
    digits = (digits | digits << 4) & 0x0F0F0F0F0F0F0F0F;
    const std::uint64_t letters = ((digits + 0x0606060606060606) >> 4) & 0x0101010101010101;
    return digits + 0x3030303030303030 + letters * ('A' - '9' - 1);
}

// Appends digits. Always writes eight bytes, whatever the count.
char* appendDigits(char* at, std::uint32_t value, int count)
{
    std::uint64_t digits = eightDigits(value) << (64 - 8 * count);
    if constexpr (std::endian::native == std::endian::little)
    {
        digits = __builtin_bswap64(digits);
    }
    std::memcpy(at, &digits, sizeof digits);
    return at + count;
}

// Appends the value in hexadecimal capitals.
char* appendHandle(char* at, std::uint64_t value)
{
    const int count = (std::bit_width(value | 1) + 3) / 4;
    if (count <= 8) [[likely]]
    {
        return appendDigits(at, std::uint32_t(value), count);
    }
    at = appendDigits(at, std::uint32_t(value >> 32), count - 8);
    return appendDigits(at, std::uint32_t(value), 8);
}
}  // namespace

std::string realText(double value)
{
    char text[slack];
    return {text, appendReal(text, value)};
}

// Appends bytes and leaves room for a number and a line ending.
inline void TagWriter::copy(std::string_view bytes)
{
    if (m_full - m_at < static_cast<std::ptrdiff_t>(bytes.size()))
    {
        return copyLong(bytes);
    }
    std::memcpy(m_at, bytes.data(), bytes.size());
    m_at += bytes.size();
}

inline char* TagWriter::appendKnownReal(char* at, double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    RealText& known = m_realTexts[(bits * 0x9E3779B97F4A7C15u) >> (64 - realTextBits)];
    if (known.bits != bits)
    {
        return appendNewReal(at, value, known);
    }
    std::memcpy(at, known.text, sizeof known.text);
    return at + known.length;
}

RecordForm::Gap::Gap(std::string_view bytes)
    : length(static_cast<unsigned char>(bytes.copy(text, sizeof text)))
{
}

TagWriter::TagWriter(Drain drain, const TagStyle& style)
    : m_drain(std::move(drain)),
      m_newlineLength(style.newline.copy(m_newline, sizeof m_newline)),
      m_buffer(std::make_unique_for_overwrite<char[]>(bufferSize + numbersSlack)),
      m_at(m_buffer.get()),
      m_full(m_at + bufferSize),
      m_realTexts(std::size_t(1) << realTextBits)
{
    // The bits of 0 belong to the first place. An empty entry in any other place therefore never
    // matches.
    appendNewReal(m_at, 0, m_realTexts[0]);
    for (std::size_t code = 0; code < m_codes.size(); ++code)
    {
        std::string line = std::to_string(code);
        if (line.size() < static_cast<std::size_t>(style.codeWidth))
        {
            line.insert(0, style.codeWidth - line.size(), ' ');
        }
        line += style.newline;
        std::copy(line.begin(), line.end(), m_codes[code].text);
        m_codes[code].length = line.size();
        m_codes[code].integerWidth = style.padIntegers ? integerWidth(Code(int(code))) : 0;
    }
}

void TagWriter::text(Code code, std::string_view encoded)
{
    if (encoded.find('\n') != encoded.npos)
    {
        throw std::domain_error("a text has more than one line");
    }
    m_at = begin(code);
    copy(encoded);
    end(m_at);
}

void TagWriter::integer(Code code, std::int64_t value)
{
    char digits[24];
    const char* last = std::to_chars(digits, digits + sizeof digits, value).ptr;
    char* at = begin(code);
    for (auto width = last - digits; width < m_codes[std::size_t(code.number())].integerWidth;
         ++width)
    {
        *at++ = ' ';
    }
    end(std::copy(static_cast<const char*>(digits), last, at));
}

void TagWriter::handle(Code code, std::uint64_t value)
{
    end(appendHandle(begin(code), value));
}

void TagWriter::real(Code code, double value)
{
    end(appendKnownReal(begin(code), value));
}

char* TagWriter::appendNewReal(char* at, double value, RealText& known)
{
    char* const last = appendReal(at, value);
    if (last - at <= static_cast<std::ptrdiff_t>(sizeof known.text))
    {
        known.bits = std::bit_cast<std::uint64_t>(value);
        known.length = static_cast<unsigned char>(last - at);
        std::copy(at, last, known.text);
    }
    return last;
}

void TagWriter::point(Code code, double x, double y)
{
    real(code, x);
    real(code.y(), y);
}

void TagWriter::point(Code code, double x, double y, double z)
{
    point(code, x, y);
    real(code.z(), z);
}

void TagWriter::raw(std::string_view bytes)
{
    copy(bytes);
}

void TagWriter::record(const RecordForm& form, std::uint64_t handle, const double (&numbers)[6])
{
    copy(form.head);
    if (form.hasHandle)
    {
        m_at = appendHandle(m_at, handle);
    }
    copy(form.common);
    char* at = appendKnownReal(m_at, numbers[0]);
    for (int i = 0; i < 5; ++i)
    {
        std::memcpy(at, form.gaps[i].text, sizeof form.gaps[i].text);
        at = appendKnownReal(at + form.gaps[i].length, numbers[i + 1]);
    }
    m_at = at;
    copy(form.tail);
}

void TagWriter::codeLine(Code code)
{
    m_at = begin(code);
}

void TagWriter::lineEnd()
{
    end(m_at);
}

void TagWriter::flush()
{
    const std::string_view filled(m_buffer.get(), m_at - m_buffer.get());
    m_at = m_buffer.get();
    if (!filled.empty())
    {
        m_drain(filled);
    }
}

// Returns where the value goes, with room for a number and the line ending.
char* TagWriter::begin(Code code)
{
    if (m_full - m_at < static_cast<std::ptrdiff_t>(slack))
    {
        flush();
    }
    const CodeLine& line = m_codes.at(std::size_t(code.number()));
    std::memcpy(m_at, line.text, sizeof line.text);
    return m_at + line.length;
}

void TagWriter::end(char* at)
{
    std::memcpy(at, m_newline, sizeof m_newline);
    m_at = at + m_newlineLength;
}

void TagWriter::copyLong(std::string_view bytes)
{
    flush();
    if (bytes.size() > bufferSize)
    {
        return m_drain(bytes);
    }
    m_at = std::copy(bytes.begin(), bytes.end(), m_at);
}
}  // namespace host::dxf
