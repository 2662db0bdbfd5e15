// A DXF file as tags: its sections, records and header variables, each a range of its bytes.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "host/dxf/error.h"
#include "host/dxf/progress.h"
#include "host/dxf/release.h"
#include "host/dxf/tag.h"

namespace host::dxf
{
// What begins at a tag of code 0 and ends before the next one. A drawing has a million of these.
struct Record
{
    std::size_t begin;
    std::size_t end;
    std::uint64_t handle;  // 0: has none
    std::uint32_t line;    // of the first tag
    std::uint32_t type;    // TagFile::typeName tells it
};

struct Section
{
    std::string_view name;
    std::size_t begin;  // after the tag with the name
    std::size_t end;    // of the contents: where ENDSEC's tag begins
    std::uint32_t line;
    std::size_t firstRecord;
    std::size_t recordCount;  // 0 but in TABLES, BLOCKS, ENTITIES and OBJECTS
};

struct HeaderVariable
{
    std::string_view name;  // with the "$"
    std::size_t begin;      // of the values: after the tag with the name
    std::size_t end;
    std::uint32_t line;
};

// A DXF drawing of R12 to R2018, whole in memory and unchanged; a binary one in the ASCII form that
// has the same tags. Everything else is refused
// by an Error: other files and versions, tags out of step, sections out of order, a missing end
// and handles that are no handles. Records that share a handle are repaired.
//
// What is checked is the form of the file, not the meaning of its records. All views, records and
// sections are [borrowed] from the TagFile; moving it keeps them good.
class TagFile
{
public:
    static TagFile read(const std::string& path, const Progress& progress = {});
    // `name` stands for the file in messages.
    static TagFile fromText(std::string_view text, std::string name, const Progress& progress = {});

    const std::string& name() const { return m_name; }
    std::string_view bytes() const { return {m_bytes.get(), m_size}; }
    const Release& release() const { return *m_release; }
    std::string_view codePageName() const { return m_codePage; }  // "ANSI_1252"; empty: not stated
    const TagStyle& style() const { return m_style; }

    std::span<const Section> sections() const { return m_sections; }
    const Section* section(std::string_view name) const;     // nullptr: has none
    std::size_t endOfSection(const Section& section) const;  // after ENDSEC
    std::size_t firstTag() const;  // offset of it: some editors mark UTF-8 files
    std::size_t eofOffset() const { return m_eofOffset; }  // new sections go before this

    std::span<const Record> records() const { return m_records; }  // of all sections, file order
    std::span<const Record> records(std::string_view section) const;
    std::string_view typeName(const Record& record) const { return m_types[record.type]; }
    std::uint64_t highestHandle() const { return m_highestHandle; }
    // An R12 drawing may do without them.
    bool hasHandles() const { return m_release->objects || m_highestHandle != 0; }

    // Records whose handle in the file is empty, zero or that of another record: they have new ones
    // here, above all others, which the file is to be given on saving.
    std::span<const std::size_t> repairedRecords() const { return m_repaired; }
    // The tag with the record's handle; none has the code 0.
    Tag handleTag(const Record& record) const;
    std::string repairs() const;  // one line about them; empty when there are none

    // In file order. Of two with one name the later is the one that `header` finds.
    std::span<const HeaderVariable> headerVariables() const { return m_header; }
    const HeaderVariable* header(std::string_view name) const;  // with the "$"; nullptr: has none

    Tags tags(const Record& record) const { return range(record); }  // the first has code 0
    Tags tags(const Section& section) const { return range(section); }
    Tags tags(const HeaderVariable& variable) const { return range(variable); }  // values only

    // Value of a tag, blanks around it ignored. An Error if it is not that.
    double real(const Tag& tag) const;  // finite
    std::int64_t integer(const Tag& tag) const;
    std::uint64_t handle(const Tag& tag) const;  // 0 is good: refers to nothing

    // Throws "FILE: line N: expected X, found Y".
    // "FILE: offset N: ..." for a binary file.
    [[noreturn]] void refuse(std::uint32_t line, std::string_view expected,
                             std::string_view found) const;
    [[noreturn]] void refuseValue(const Tag& tag, std::string_view expected) const;

private:
    friend class TagFileScanner;

    TagFile(std::string name, std::unique_ptr<char[]> bytes, std::size_t size,
            const Progress& progress);
    void takeAsciiForm();
    std::string place(std::uint32_t line) const;

    template <class Range>
    Tags range(const Range& r) const
    {
        return {m_bytes.get(), r.begin, r.end, r.line};
    }

    std::string m_name;
    std::unique_ptr<char[]> m_bytes;  // one '\n' more than the file
    std::size_t m_size = 0;
    std::vector<std::size_t> m_offsets;  // of a binary file: where each tag begins, and the end
    const Release* m_release = nullptr;
    std::string_view m_codePage;
    TagStyle m_style;
    std::size_t m_eofOffset = 0;
    std::vector<Section> m_sections;
    std::vector<Record> m_records;
    std::vector<std::string_view> m_types;
    std::vector<HeaderVariable> m_header;
    std::uint64_t m_highestHandle = 0;
    std::vector<std::size_t> m_repaired;  // indexes of m_records
};
}  // namespace host::dxf
