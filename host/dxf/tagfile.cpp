#include "host/dxf/tagfile.h"

#include <algorithm>
#include <cmath>

#include "host/dxf/binaryform.h"
#include "host/dxf/schema/structure.h"
#include "host/dxf/tagscanner.h"
#include "host/dxf/wholefile.h"
#include "host/text/numbers.h"

namespace host::dxf
{
namespace
{
// Quotes a value so that the message stays one line, whatever the file contains.
std::string quoted(std::string_view value)
{
    constexpr std::size_t longest = 40;
    std::string text(value.substr(0, longest));
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' ' || c > '~'; }, '?');
    return '"' + text + (value.size() > longest ? "...\"" : "\"");
}
}  // namespace

// Reads the file. The bytes are copied, not mapped: a program that writes the file meanwhile must
// not change the drawing in memory.
TagFile TagFile::read(const std::string& path, const Progress& progress)
{
    return fromBytes(readWholeFile(path), path, progress);
}

TagFile TagFile::fromBytes(WholeFile file, std::string name, const Progress& progress)
{
    return TagFile(std::move(name), std::move(file.bytes), file.size, progress);
}

TagFile TagFile::fromText(std::string_view text, std::string name, const Progress& progress)
{
    WholeFile file{std::make_unique_for_overwrite<char[]>(text.size() + 1), text.size()};
    text.copy(file.bytes.get(), text.size());
    return fromBytes(std::move(file), std::move(name), progress);
}

TagFile::TagFile(std::string name, std::unique_ptr<char[]> bytes, std::size_t size,
                 const Progress& progress)
    : m_name(std::move(name)), m_bytes(std::move(bytes)), m_size(size)
{
    if (isBinary(this->bytes()))
    {
        takeAsciiForm();
    }
    m_bytes[m_size] = '\n';
    TagFileScanner(*this, progress).scan();
}

void TagFile::takeAsciiForm()
{
    AsciiForm form = asciiForm(bytes(), m_name);
    m_style.binaryCodeSize = form.codeSize;
    m_offsets = std::move(form.offsets);
    m_size = form.text.size();
    m_bytes = std::make_unique_for_overwrite<char[]>(m_size + 1);
    form.text.copy(m_bytes.get(), m_size);
}

std::string TagFile::place(std::uint32_t line) const
{
    if (m_offsets.empty())
    {
        return "line " + std::to_string(line);
    }
    const std::size_t tag = std::min<std::size_t>((line - 1) / 2, m_offsets.size() - 1);
    return "offset " + std::to_string(m_offsets[tag]);
}

std::size_t TagFile::firstTag() const
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return bytes().starts_with(mark) ? mark.size() : 0;
}

const Section* TagFile::section(std::string_view name) const
{
    const auto found = std::ranges::find(m_sections, name, &Section::name);
    return found == m_sections.end() ? nullptr : &*found;
}

std::size_t TagFile::endOfSection(const Section& section) const
{
    return Tags(m_bytes.get(), section.end, m_size, section.line).begin()->end;
}

std::span<const Record> TagFile::records(std::string_view name) const
{
    const Section* found = section(name);
    return found ? records().subspan(found->firstRecord, found->recordCount)
                 : std::span<const Record>();
}

Tag TagFile::handleTag(const Record& record) const
{
    const Code code = schema::handleOf(typeName(record));
    bool inBraces = false;
    for (const Tag& tag : tags(record))
    {
        if (tag.code == schema::list)
        {
            inBraces = trimmed(tag.value).starts_with('{');
        }
        else if (tag.code == code && !inBraces)
        {
            return tag;
        }
    }
    return {};
}

std::string TagFile::repairs() const
{
    if (m_repaired.empty())
    {
        return {};
    }
    const Tag first = handleTag(m_records[m_repaired.front()]);
    const std::size_t count = m_repaired.size();
    return m_name + ": " + place(first.line + 1) + ": the handle " + quoted(trimmed(first.value)) +
           " is no record's own; " + std::to_string(count) +
           (count == 1 ? " record is given a new one" : " records are given new ones");
}

const HeaderVariable* TagFile::header(std::string_view name) const
{
    const auto found = std::find_if(m_header.rbegin(), m_header.rend(),
                                    [&](const HeaderVariable& v) { return v.name == name; });
    return found == m_header.rend() ? nullptr : &*found;
}

double TagFile::real(const Tag& tag) const
{
    const auto number = readNumber<double>(tag.value);
    if (!number || !std::isfinite(*number))
    {
        refuseValue(tag, "a number");
    }
    return *number;
}

std::int64_t TagFile::integer(const Tag& tag) const
{
    const auto number = readNumber<std::int64_t>(tag.value);
    if (!number)
    {
        refuseValue(tag, "an integer");
    }
    return *number;
}

std::uint64_t TagFile::handle(const Tag& tag) const
{
    const auto number = readNumber<std::uint64_t>(tag.value, 16);
    if (!number || trimmed(tag.value).size() > 16)
    {
        refuseValue(tag, "a handle of 1 to 16 hexadecimal digits");
    }
    return *number;
}

void TagFile::refuse(std::uint32_t line, std::string_view expected, std::string_view found) const
{
    fail(m_name,
         place(line) + ": expected " + std::string(expected) + ", found " + std::string(found));
}

void TagFile::refuseValue(const Tag& tag, std::string_view expected) const
{
    refuse(tag.line + 1, expected, quoted(tag.value));
}
}  // namespace host::dxf
