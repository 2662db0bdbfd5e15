// A DXF file as tags. Its sections, records and header variables are ranges of its bytes.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "host/dxf/error.h"
#include "host/dxf/progress.h"
#include "host/dxf/release.h"
#include "host/dxf/tag.h"
#include "host/dxf/wholefile.h"

namespace host::dxf
{
// A record begins at a tag with code 0 and ends before the next one. A drawing may have a million
// records.
struct Record
{
    std::size_t begin;
    std::size_t end;
    std::uint64_t handle;  // 0: the record has no handle
    std::uint32_t line;    // line of the first tag
    std::uint32_t type;    // TagFile::typeName returns its text
};

struct Section
{
    std::string_view name;
    std::size_t begin;  // offset after the tag with the name
    std::size_t end;    // end of the contents, where the tag of ENDSEC begins
    std::uint32_t line;
    std::size_t firstRecord;
    std::size_t recordCount;  // 0 except in TABLES, BLOCKS, ENTITIES and OBJECTS
};

struct HeaderVariable
{
    std::string_view name;  // with the "$"
    std::size_t begin;      // begin of the values, after the tag with the name
    std::size_t end;
    std::uint32_t line;
};

// A DXF drawing of R12 to R2018, held unchanged in memory as a whole. A binary drawing is held in
// the ASCII form that has the same tags. An Error refuses everything else: other files and
// versions, tags out of step, sections out of order, a missing end and malformed handles. Records
// that share a handle are repaired.
//
// The class checks the form of the file, not the meaning of its records. All views, records and
// sections are [borrowed] from the TagFile; they stay valid when it is moved.
class TagFile
{
public:
    // Reads the file at `path`. Throws an Error if the file is refused.
    static TagFile read(const std::string& path, const Progress& progress = {});
    // Each reads the contents of a file. Messages use `name` for the file.
    static TagFile fromBytes(WholeFile file, std::string name, const Progress& progress = {});
    static TagFile fromText(std::string_view text, std::string name, const Progress& progress = {});

    const std::string& name() const { return m_name; }
    std::string_view bytes() const { return {m_bytes.get(), m_size}; }
    const Release& release() const { return *m_release; }
    std::string_view codePageName() const
    {
        return m_codePage;
    }  // "ANSI_1252"; empty if the file states none
    const TagStyle& style() const { return m_style; }

    std::span<const Section> sections() const { return m_sections; }
    const Section* section(std::string_view name) const;  // nullptr if the file lacks the section
    std::size_t endOfSection(const Section& section) const;  // offset after ENDSEC
    // Returns the offset of the first tag. It is not 0 if an editor put a UTF-8 mark before the
    // tag.
    std::size_t firstTag() const;
    std::size_t eofOffset() const { return m_eofOffset; }  // new sections are inserted here

    // Returns the records of all sections in file order.
    std::span<const Record> records() const { return m_records; }
    std::span<const Record> records(std::string_view section) const;
    std::string_view typeName(const Record& record) const { return m_types[record.type]; }
    std::uint64_t highestHandle() const { return m_highestHandle; }
    // Returns false only for an R12 drawing without handles; later releases always have them.
    bool hasHandles() const { return m_release->objects || m_highestHandle != 0; }

    // Returns the indexes of records whose handle in the file is empty, zero or that of another
    // record. Here they have new handles above all others; saving writes these to the file.
    std::span<const std::size_t> repairedRecords() const { return m_repaired; }
    // Returns the tag with the record's handle, or a tag with code 0 if the record has no handle.
    Tag handleTag(const Record& record) const;
    std::string repairs()
        const;  // one line about the repaired records; empty if no record was repaired

    // Returns the variables in file order. If two variables have the same name, `header` finds the
    // later one.
    std::span<const HeaderVariable> headerVariables() const { return m_header; }
    // Finds a variable by its name with the "$". Returns nullptr if it is missing.
    const HeaderVariable* header(std::string_view name) const;

    Tags tags(const Record& record) const { return range(record); }  // the first tag has code 0
    Tags tags(const Section& section) const { return range(section); }
    Tags tags(const HeaderVariable& variable) const { return range(variable); }  // the values only

    // Return the value of a tag without surrounding blanks. They throw an Error if the value has
    // another type.
    double real(const Tag& tag) const;  // always finite
    std::int64_t integer(const Tag& tag) const;
    std::uint64_t handle(const Tag& tag) const;  // 0 is valid: it refers to nothing

    // Throws an Error, "FILE: line N: expected X, found Y", or "FILE: offset N: ..." for a binary
    // file.
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
    // Only for a binary file: the offset of each tag and of the end.
    std::vector<std::size_t> m_offsets;
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
