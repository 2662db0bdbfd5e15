#include "host/dxf/tagwriter.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace host::dxf
{
namespace
{
constexpr std::size_t bufferSize = 1 << 20;
// Room for any tag but a text: the code's line, a number and a line ending.
constexpr std::size_t slack = 64;

// Columns of a padded integer; the blanks show how many bytes a reader needs for it.
int integerWidth(int code)
{
    const auto in = [code](int first, int last) { return first <= code && code <= last; };
    if (in(90, 99) || in(420, 429) || in(440, 459) || code == 1071)
        return 9;
    if (in(160, 169))
        return 18;
    return 6;
}

char* appendReal(char* at, double value)
{
    if (!std::isfinite(value))
        throw std::domain_error("a number is not finite");

    const double magnitude = std::fabs(value);
    // Whole numbers are common in drawings and much faster as integers.
    if (magnitude < 1e15 && value == std::trunc(value))
    {
        at = std::to_chars(at, at + slack, static_cast<std::int64_t>(value)).ptr;
        return std::copy_n(".0", 2, at);
    }
    // Within these bounds the digits are easier to read than an exponent and hardly longer.
    if (1e-5 <= magnitude && magnitude < 1e15)
        return std::to_chars(at, at + slack, value, std::chars_format::fixed).ptr;
    return std::to_chars(at, at + slack, value, std::chars_format::scientific).ptr;
}
}  // namespace

std::string realText(double value)
{
    char text[slack];
    return {text, appendReal(text, value)};
}

TagWriter::TagWriter(Drain drain, const TagStyle& style)
    : m_drain(std::move(drain)),
      m_newline(style.newline),
      m_buffer(std::make_unique_for_overwrite<char[]>(bufferSize + slack)),
      m_at(m_buffer.get()),
      m_realTexts(std::size_t(1) << realTextBits)
{
    for (std::size_t code = 0; code < m_codes.size(); ++code)
    {
        std::string line = std::to_string(code);
        if (line.size() < static_cast<std::size_t>(style.codeWidth))
            line.insert(0, style.codeWidth - line.size(), ' ');
        line += m_newline;
        std::copy(line.begin(), line.end(), m_codes[code].text);
        m_codes[code].length = line.size();
        m_codes[code].integerWidth = style.padIntegers ? integerWidth(code) : 0;
    }
}

void TagWriter::text(int code, std::string_view encoded)
{
    if (encoded.find('\n') != encoded.npos)
        throw std::domain_error("a text has more than one line");
    m_at = begin(code);
    copy(encoded);
    end(m_at);
}

void TagWriter::integer(int code, std::int64_t value)
{
    char digits[24];
    const char* last = std::to_chars(digits, digits + sizeof digits, value).ptr;
    char* at = begin(code);
    for (auto width = last - digits; width < m_codes[code].integerWidth; ++width)
        *at++ = ' ';
    end(std::copy(static_cast<const char*>(digits), last, at));
}

void TagWriter::handle(int code, std::uint64_t value)
{
    char* const at = begin(code);
    const int digits = std::max(1, int(std::bit_width(value) + 3) / 4);
    for (int i = digits - 1; i >= 0; --i, value >>= 4)
        at[i] = "0123456789ABCDEF"[value & 15];
    end(at + digits);
}

void TagWriter::real(int code, double value)
{
    end(appendKnownReal(begin(code), value));
}

char* TagWriter::appendKnownReal(char* at, double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    RealText& known = m_realTexts[(bits * 0x9E3779B97F4A7C15u) >> (64 - realTextBits)];
    if (known.bits != bits || known.length == 0)
    {
        char* const last = appendReal(at, value);
        if (last - at > static_cast<std::ptrdiff_t>(sizeof known.text))
        {
            return last;
        }
        known.bits = bits;
        known.length = static_cast<unsigned char>(last - at);
        std::copy(at, last, known.text);
        return last;
    }
    std::memcpy(at, known.text, sizeof known.text);
    return at + known.length;
}

void TagWriter::point(int code, double x, double y)
{
    real(code, x);
    real(code + 10, y);
}

void TagWriter::point(int code, double x, double y, double z)
{
    point(code, x, y);
    real(code + 20, z);
}

void TagWriter::raw(std::string_view bytes)
{
    copy(bytes);
}

void TagWriter::flush()
{
    const std::string_view filled(m_buffer.get(), m_at - m_buffer.get());
    m_at = m_buffer.get();
    if (!filled.empty())
        m_drain(filled);
}

// Where the value goes, with room for a number and the line ending.
char* TagWriter::begin(int code)
{
    if (m_at - m_buffer.get() > static_cast<std::ptrdiff_t>(bufferSize - slack))
        flush();
    const CodeLine& line = m_codes.at(code);
    std::memcpy(m_at, line.text, sizeof line.text);
    return m_at + line.length;
}

void TagWriter::end(char* at)
{
    m_at = std::copy(m_newline.begin(), m_newline.end(), at);
}

// Leaves room for a line ending.
void TagWriter::copy(std::string_view bytes)
{
    const std::size_t filled = m_at - m_buffer.get();
    if (filled + bytes.size() > bufferSize)
        flush();
    if (bytes.size() > bufferSize)
        return m_drain(bytes);
    m_at = std::copy(bytes.begin(), bytes.end(), m_at);
}
}  // namespace host::dxf
