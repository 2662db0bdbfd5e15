// Collects the changes to a drawing file. All other bytes stay as they are.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/dxf/tagfile.h"
#include "host/dxf/tagwriter.h"

namespace host::dxf
{
// Writes tags at the moment when the file is written, so nothing is held in memory until then. May
// throw.
using Producer = std::function<void(TagWriter&)>;

// Writes a section with the given contents.
void writeSection(TagWriter& writer, std::string_view name, const Producer& contents);

// Changes may be noted in any order. Changes must not overlap, and each tag and each variable may
// be changed only once; otherwise `write` throws std::logic_error. The file is [borrowed] and
// outlives the edits.
class Edits
{
public:
    explicit Edits(const TagFile& file) : m_file(file) {}

    const TagFile& file() const { return m_file; }
    bool empty() const { return m_edits.empty() && m_newHeader.empty(); }

    // Replaces the bytes from `begin` up to `end` by what `produce` writes. Both offsets are
    // offsets of tags.
    void replace(std::size_t begin, std::size_t end, Producer produce);
    // Inserts at an offset. Insertions at the same offset are written in the order in which they
    // were noted.
    void insert(std::size_t at, Producer produce) { replace(at, at, std::move(produce)); }
    void insertAfter(const Tag& tag, Producer produce) { insert(tag.end, std::move(produce)); }
    void remove(std::size_t begin, std::size_t end) { replace(begin, end, {}); }
    void remove(const Tag& tag) { remove(tag.begin, tag.end); }

    // Sets the value of a tag. Its group code and its line endings stay. `encoded` is one line in
    // the file's code page. Does nothing if the tag has that value already, apart from surrounding
    // blanks.
    void setValue(const Tag& tag, std::string_view encoded);

    // Sets the value tags of a header variable ("$INSUNITS": code 70). Adds the variable if the
    // header lacks it, and the header if the file lacks it. Does nothing if the variable has these
    // tags already. Calls `produce` at once.
    void setHeader(std::string_view name, const Producer& produce);

    void write(TagWriter& writer) const;  // writes the whole file, without flushing
    // Writes each change and its place. Equal changes noted in the same order give equal output.
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
    std::string m_newHeader;  // the variables for a file without a header
};
}  // namespace host::dxf
