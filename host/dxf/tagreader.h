// Reads a file's tags one after the other and refuses what is none.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/tagfile.h"

namespace host::dxf
{
class TagReader
{
public:
    // Before the file's first tag. There must be a '\n' behind the file's last byte; the file is
    // [borrowed].
    explicit TagReader(const TagFile& file);

    // All throw an Error if there is no tag.
    void next();
    void nextButComments();
    void skipTo(Code code);  // from the current tag on

    const Tag& tag() const { return m_tag; }
    bool is(std::string_view word) const  // the tag has code 0 and this value
    {
        return m_tag.code == schema::recordType && trimmed(m_tag.value) == word;
    }
    std::uint32_t nextLine() const { return m_nextLine; }
    std::string_view rest() const;  // of the file, after the tag

    [[noreturn]] void refuse(std::string_view expected) const;  // the tag

private:
    Code readCode();
    [[noreturn]] void refuseLine() const;

    const TagFile& m_file;
    const char* const m_begin;
    const char* const m_end;
    const char* m_next;
    std::uint32_t m_nextLine = 1;
    Tag m_tag{};
};
}  // namespace host::dxf
