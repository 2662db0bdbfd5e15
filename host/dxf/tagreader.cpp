#include "host/dxf/tagreader.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "host/dxf/schema/structure.h"

namespace host::dxf
{
namespace
{
bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool isDigit(char c)
{
    return '0' <= c && c <= '9';
}

// Tells whether a line holds a number of three places, with blanks before the number. Looks at up
// to five letters.
bool isInThreePlaces(const char* line)
{
    const bool isNumber = isDigit(line[2]) && (isDigit(line[1]) ? isDigit(line[0]) || line[0] == ' '
                                                                : line[0] == ' ' && line[1] == ' ');
    return isNumber && (line[3] == '\n' || (line[3] == '\r' && line[4] == '\n'));
}

// Returns the line's end, which must be there: the next '\n'. Most values are short, and to look at
// eight letters at once takes less than the call of a search.
const char* endOfLine(const char* at, const char* end)
{
    if (std::endian::native == std::endian::little && end - at >= 8)
    {
        std::uint64_t letters;
        std::memcpy(&letters, at, sizeof letters);
        letters ^= 0x0A0A0A0A0A0A0A0A;  // 0 for a line's end
        const std::uint64_t ends = (letters - 0x0101010101010101) & ~letters & 0x8080808080808080;
        if (ends != 0)
        {
            return at + std::countr_zero(ends) / 8;
        }
    }
    return static_cast<const char*>(std::memchr(at, '\n', end - at + 1));
}
}  // namespace

TagReader::TagReader(const TagFile& file)
    : m_file(file),
      m_begin(file.bytes().data()),
      m_end(m_begin + file.bytes().size()),
      m_next(m_begin + file.firstTag())
{
}

void TagReader::next()
{
    const char* begin = m_next;
    const Code code = readCode();
    const char* value = m_next;
    const char* lineEnd = endOfLine(value, m_end);
    const char* valueEnd = lineEnd > value && lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
    m_next = lineEnd + 1;
    m_tag.code = code;
    m_tag.value = {value, valueEnd};
    m_tag.begin = begin - m_begin;
    m_tag.end = m_next - m_begin;
    m_tag.line = m_nextLine;
    m_nextLine += 2;
}

// Reads the code and leaves m_next at the value. Throws an Error if the value is missing.
inline Code TagReader::readCode()
{
    // Most programs write codes in three places: " 10".
    const char* at = m_next;
    if (m_end - at > 5 && isInThreePlaces(at))
    {
        const auto digit = [at](int place) { return at[place] & 0xF; };  // a blank is 0 there
        m_next = at + (at[3] == '\n' ? 4 : 5);
        const int code = digit(0) * 100 + digit(1) * 10 + digit(2);
        return Code(code);
    }
    return readOtherCode();
}

// Reads a code written in any way.
Code TagReader::readOtherCode()
{
    const char* at = m_next;
    if (at >= m_end)
    {
        m_file.refuse(m_nextLine, "EOF", "the end of the file");
    }
    while (isBlank(*at))
    {
        ++at;
    }
    const char* digits = at;
    int code = 0;
    for (; isDigit(*at) && code <= highestCode; ++at)
    {
        code = code * 10 + (*at - '0');
    }
    if (at == digits || code > highestCode)
    {
        refuseLine();
    }
    while (isBlank(*at))
    {
        ++at;
    }
    at += *at == '\r';
    if (*at != '\n')
    {
        refuseLine();
    }
    if (at + 1 >= m_end)
    {
        m_file.refuse(m_nextLine + 1, "a value", "the end of the file");
    }
    m_next = at + 1;
    return Code(code);
}

void TagReader::nextButComments()
{
    do
    {
        next();
    } while (m_tag.code == schema::comment);
}

void TagReader::skipTo(Code code)
{
    while (m_tag.code != code)
    {
        next();
    }
}

std::string_view TagReader::rest() const
{
    return {std::min(m_next, m_end), m_end};
}

void TagReader::refuseLine() const
{
    const char* end = std::find(m_next, m_end, '\n');
    end -= end > m_next && end[-1] == '\r';
    const Tag line{Code(), {m_next, end}, 0, 0, m_nextLine - 1};
    m_file.refuseValue(line, "a group code from 0 to 1071");
}

void TagReader::refuse(std::string_view expected) const
{
    if (m_tag.code == schema::recordType || m_tag.code == schema::name)
    {
        m_file.refuseValue(m_tag, expected);
    }
    m_file.refuse(m_tag.line, expected, "group code " + std::to_string(m_tag.code.number()));
}
}  // namespace host::dxf
