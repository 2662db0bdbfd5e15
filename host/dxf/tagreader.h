// Reads a file's tags one after another and refuses anything that is not a tag.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/tagfile.h"

namespace host::dxf
{
class TagReader
{
public:
    // Starts before the file's first tag. The file is [borrowed], and a '\n' must follow
    // its last byte. The views in tags are [borrowed] from the file.
    explicit TagReader(const TagFile& file);

    // Advance to the next tag. Throw an Error if the file has no further tag.
    void next();
    void nextButComments();
    void skipTo(Code code);  // starts with the current tag

    const Tag& tag() const { return m_tag; }
    bool is(std::string_view word) const  // true if the tag has code 0 and this value
    {
        return m_tag.code == schema::recordType && trimmed(m_tag.value) == word;
    }
    std::uint32_t nextLine() const { return m_nextLine; }
    std::string_view rest() const;  // the rest of the file, after the tag

    [[noreturn]] void refuse(std::string_view expected) const;  // throws an Error about the tag

private:
    Code readCode();
    Code readOtherCode();
    [[noreturn]] void refuseLine() const;

    const TagFile& m_file;
    const char* const m_begin;
    const char* const m_end;
    const char* m_next;
    std::uint32_t m_nextLine = 1;
    Tag m_tag{};
};
}  // namespace host::dxf
