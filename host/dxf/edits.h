// What is to be changed in a drawing file; all other bytes stay as they are.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/dxf/tagfile.h"
#include "host/dxf/tagwriter.h"

namespace host::dxf
{
// Writes tags when the file is written; nothing is held until then. May throw.
using Producer = std::function<void(TagWriter&)>;

// What is produced, as a section.
void writeSection(TagWriter& writer, std::string_view name, const Producer& contents);

// Changes may be noted in any order. They must not overlap, each tag and each variable is changed
// once; `write` throws std::logic_error otherwise.
class Edits
{
public:
    explicit Edits(const TagFile& file) : m_file(file) {}  // [borrowed]

    const TagFile& file() const { return m_file; }
    bool empty() const { return m_edits.empty() && m_newHeader.empty(); }

    // The bytes from `begin` up to `end` give way to what is produced. Offsets are those of tags.
    void replace(std::size_t begin, std::size_t end, Producer produce);
    // Of several insertions at one place the one noted first is written first.
    void insert(std::size_t at, Producer produce) { replace(at, at, std::move(produce)); }
    void insertAfter(const Tag& tag, Producer produce) { insert(tag.end, std::move(produce)); }
    void remove(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    void remove(const Tag& tag) { remove(tag.begin, tag.end); }

    // The code, its line and the line endings stay. `encoded` is one line in the file's code page.
    // No change if that is the value already, blanks around it ignored.
    void setValue(const Tag& tag, std::string_view encoded);

    // The value tags of a header variable ("$INSUNITS": code 70). It is added if the header lacks
    // it, and the header if the file lacks that. No change if these are its tags already. `produce`
    // is called at once.
    void setHeader(std::string_view name, const Producer& produce);

    void write(TagWriter& writer) const;  // the whole file, without flushing
    // What is to be changed, and where: the same for equal changes noted in the same order.
    void writeChanges(TagWriter& writer) const;

private:
    struct Edit
    {
        std::size_t begin;
        std::size_t end;
        Producer produce;
    };

    void writeNewHeader(TagWriter& writer) const;

    const TagFile& m_file;
    std::vector<Edit> m_edits;
    std::string m_newHeader;  // variables of a file that has no header
};
}  // namespace host::dxf
