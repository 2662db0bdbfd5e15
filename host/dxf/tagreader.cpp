#include "host/dxf/tagreader.h"

#include <algorithm>

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
    const auto* lineEnd = static_cast<const char*>(std::memchr(value, '\n', m_end - value + 1));
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
