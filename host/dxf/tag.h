// The tag of a DXF file: a group code and its value, one line each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string_view>

#include "host/dxf/schema/code.h"

#include "host/text/trim.h"

namespace host::dxf
{
// Replaces a line feed within a text of a binary drawing. A zero byte ends such a text, so the text
// itself never contains one.
inline constexpr char lineFeedInText = '\0';

struct Tag
{
    Code code;
    std::string_view value;  // the file's bytes with their blanks, without the line ending
    std::size_t begin;       // offset of the group code's line
    std::size_t end;         // offset after the value's line
    std::uint32_t line;      // line of the group code, from 1; the value is on the next line
};

// The layout of a file's tags, so that new tags look like their neighbours.
struct TagStyle
{
    std::string_view newline = "\n";
    int codeWidth = 3;  // group codes are padded with blanks on the left to this width, 1 to 6
    bool padIntegers = false;  // integers are padded, too, to the width of their type
    int binaryCodeSize = 0;    // bytes of a group code in a binary file, 1 or 2; 0: an ASCII file
};

// The tags of a range of bytes [borrowed]. The range must consist of whole, well-formed tags; every
// range from a TagFile does.
class Tags
{
public:
    class Iterator
    {
    public:
        using value_type = Tag;
        using difference_type = std::ptrdiff_t;

        Iterator(const char* file, const char* at, const char* end, std::uint32_t line)
            : m_file(file), m_at(at), m_end(end), m_line(line)
        {
            readTag();
        }
        const Tag& operator*() const { return m_tag; }
        const Tag* operator->() const { return &m_tag; }
        Iterator& operator++()
        {
            m_at = m_file + m_tag.end;
            m_line += 2;
            readTag();
            return *this;
        }
        void operator++(int) { ++*this; }
        bool operator==(std::default_sentinel_t) const { return m_at == m_end; }

    private:
        void readTag();

        const char* m_file;
        const char* m_at;
        const char* m_end;
        std::uint32_t m_line;
        Tag m_tag{};
    };

    Tags(const char* file, std::size_t begin, std::size_t end, std::uint32_t line)
        : m_file(file), m_begin(begin), m_end(end), m_line(line)
    {
    }
    Iterator begin() const { return {m_file, m_file + m_begin, m_file + m_end, m_line}; }
    std::default_sentinel_t end() const { return {}; }

private:
    const char* m_file;
    std::size_t m_begin;
    std::size_t m_end;
    std::uint32_t m_line;
};

inline void Tags::Iterator::readTag()
{
    if (m_at == m_end)
    {
        return;
    }

    const char* p = m_at;
    while (*p == ' ' || *p == '\t')
    {
        ++p;
    }
    int code = 0;
    for (; *p >= '0' && *p <= '9'; ++p)
    {
        code = code * 10 + (*p - '0');
    }
    while (*p++ != '\n')
    {
    }
    const char* lineEnd = static_cast<const char*>(std::memchr(p, '\n', m_end - p));
    const char* valueEnd = lineEnd > p && lineEnd[-1] == '\r' ? lineEnd - 1 : lineEnd;
    m_tag = {Code(code),
             {p, static_cast<std::size_t>(valueEnd - p)},
             static_cast<std::size_t>(m_at - m_file),
             static_cast<std::size_t>(lineEnd + 1 - m_file),
             m_line};
}
}  // namespace host::dxf
