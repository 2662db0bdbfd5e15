#include "host/dxf/tagwriter.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <new>
#include <stdexcept>

#include "host/dxf/schema/code.h"

namespace host::dxf
{
namespace
{
// Room for any tag except a text: the code's line, a number and a line ending.
constexpr std::size_t slack = 64;

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
char* appendHexadecimal(char* at, std::uint64_t value)
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
    m_at = std::copy(bytes.begin(), bytes.end(), m_at);  // there may be none, at no address
}

inline char* TagWriter::appendKnownReal(char* at, double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    RealText& known = m_realTexts[(bits * 0x9E3779B97F4A7C15u) >> (64 - realTextBits)];
    if (known.bits != bits) [[unlikely]]
    {
        return appendNewReal(at, value, known);
    }
    std::memcpy(at, known.text, sizeof known.text);
    return at + known.length;
}

// The last digit counts on unless it is the last of the decimal or of all digits.
inline char* TagWriter::appendHandle(char* at, std::uint64_t handle)
{
    const unsigned digit = handle & 0xF;
    if (handle != m_handle + 1 || digit == 0 || digit == 0xA) [[unlikely]]
    {
        return appendNewHandle(at, handle);
    }
    m_handle = handle;
    std::memcpy(at, m_handleText, sizeof m_handleText);
    at += m_handleLength;
    at[-1] = char(digit < 0xA ? '0' + digit : 'A' - 0xA + digit);
    return at;
}

SharedBytes::SharedBytes(std::string_view bytes) : m_padded(bytes), m_length(bytes.size())
{
    m_padded.resize(bytes.size() + blockSize);
}

RecordForm::RecordForm(std::string_view head, bool hasHandle, std::string_view common,
                       std::vector<Gap> gaps)
    : m_head(head),
      m_hasHandle(hasHandle),
      m_common(common),
      m_gaps(std::move(gaps)),
      m_room(head.size() + common.size() + slack)
{
    for (const Gap& gap : m_gaps)
    {
        m_room += slack + gap.after.length();
    }
}

TagWriter::TagWriter(Drain drain, const TagStyle& style)
    : m_drain(std::move(drain)),
      m_codeWidth(style.codeWidth),
      m_padIntegers(style.padIntegers),
      m_newlineLength(style.newline.copy(m_newline, sizeof m_newline)),
      m_buffer(std::make_unique_for_overwrite<char[]>(bufferSize + slack)),
      m_at(m_buffer.get()),
      m_full(m_at + bufferSize),
      m_realTexts(
          static_cast<RealText*>(std::calloc(std::size_t(1) << realTextBits, sizeof(RealText))))
{
    if (m_realTexts == nullptr)
    {
        throw std::bad_alloc();
    }
    // The bits of 0 belong to the first place. An empty entry in any other place therefore never
    // matches.
    appendNewReal(m_at, 0, m_realTexts[0]);
}

void TagWriter::setCode(int code)
{
    CodeLine& made = m_codes[std::size_t(code)];
    std::string line = std::to_string(code);
    if (line.size() < static_cast<std::size_t>(m_codeWidth))
    {
        line.insert(0, m_codeWidth - line.size(), ' ');
    }
    line.append(m_newline, m_newlineLength);
    made.length = line.copy(made.text, sizeof made.text);
    made.integerWidth = m_padIntegers ? integerWidth(Code(code)) : 0;
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

char* TagWriter::appendNewHandle(char* at, std::uint64_t handle)
{
    char* const last = appendHexadecimal(at, handle);
    m_handle = handle;
    m_handleLength = unsigned(last - at);
    std::copy(at, last, m_handleText);
    return last;
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
    if (m_full - m_at < static_cast<std::ptrdiff_t>(form.m_room)) [[unlikely]]
    {
        makeRoom(form.m_room);
    }
    char* at = form.m_head.copyTo(m_at);
    if (form.m_hasHandle)
    {
        at = appendHandle(at, handle);
    }
    at = form.m_common.copyTo(at);
    for (const RecordForm::Gap& gap : form.m_gaps)
    {
        at = gap.after.copyTo(appendKnownReal(at, numbers[gap.number]));
    }
    m_at = at;
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
    if (line.length == 0) [[unlikely]]
    {
        setCode(code.number());
    }
    std::memcpy(m_at, line.text, sizeof line.text);
    return m_at + line.length;
}

void TagWriter::end(char* at)
{
    std::memcpy(at, m_newline, sizeof m_newline);
    m_at = at + m_newlineLength;
}

void TagWriter::makeRoom(std::size_t size)
{
    flush();
    if (size > bufferSize)
    {
        m_buffer = std::make_unique_for_overwrite<char[]>(size + slack);
        m_at = m_buffer.get();
        m_full = m_at + size;
    }
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
