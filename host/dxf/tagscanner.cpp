#include "host/dxf/tagscanner.h"

#include <algorithm>
#include <unordered_set>

#include "host/dxf/codepage.h"
#include "host/dxf/otherformats.h"
#include "host/dxf/release.h"
#include "host/dxf/schema/structure.h"

namespace host::dxf
{
namespace
{
constexpr std::string_view readableVersions = "version AC1009 (R12) to AC1032 (R2018)";

bool holdsRecords(std::string_view section)
{
    return section == schema::section::tables || section == schema::section::blocks ||
           section == schema::section::entities || section == schema::section::objects;
}
}  // namespace

TagFileScanner::TagFileScanner(TagFile& file, const Progress& progress)
    : m_file(file), m_progress(progress), m_reader(file)
{
    file.m_records.reserve(file.m_size / 100);  // costs no memory until it is used
}

void TagFileScanner::scan()
{
    refuseOtherFormats();
    for (m_reader.nextButComments(); !m_reader.is(schema::endOfFile); m_reader.nextButComments())
    {
        if (!m_reader.is(schema::sectionStart))
        {
            m_reader.refuse("SECTION or EOF");
        }
        readSection();
    }
    m_file.m_eofOffset = m_tag.begin;
    if (m_file.m_release == nullptr)
    {
        m_file.m_release = findRelease(unstatedVersion);
    }
    requireKnownCodePage();
    requireNothingAfterEof();
    findSharedHandles();
    repairHandles();
}

void TagFileScanner::refuseOtherFormats() const
{
    const std::string_view bytes = m_file.bytes();
    if (bytes.empty() && m_file.style().binaryCodeSize == 0)
    {
        m_file.refuse(1, "a DXF drawing", "an empty file");
    }
    if (const std::string_view other = otherFormat(bytes); !other.empty())
    {
        m_file.refuse(1, "a DXF drawing", std::string(other));
    }
}

void TagFileScanner::readSection()
{
    if (m_file.m_sections.empty())
    {
        takeStyle();
    }
    m_reader.nextButComments();
    const std::string_view name = trimmed(m_tag.value);
    if (m_tag.code != schema::name)
    {
        m_reader.refuse("the section's name (group code 2)");
    }
    if (!m_sectionNames.insert(name).second)
    {
        m_reader.refuse("a section that was not there before");
    }
    m_file.m_sections.push_back(
        {name, m_tag.end, 0, m_reader.nextLine(), m_file.m_records.size(), 0});
    if (name == schema::section::header)
    {
        readHeader();
    }
    else if (holdsRecords(name))
    {
        readRecords();
    }
    else
    {
        skipContents();
    }

    Section& section = m_file.m_sections.back();
    section.end = m_tag.begin;
    section.recordCount = m_file.m_records.size() - section.firstRecord;
}

void TagFileScanner::readHeader()
{
    std::vector<HeaderVariable>& variables = m_file.m_header;
    for (m_reader.nextButComments(); m_tag.code != schema::recordType; m_reader.nextButComments())
    {
        if (m_tag.code == schema::variableName)
        {
            variables.push_back({trimmed(m_tag.value), m_tag.end, m_tag.end, m_reader.nextLine()});
            continue;
        }
        if (variables.empty())
        {
            m_reader.refuse("a variable's name (group code 9)");
        }
        variables.back().end = m_tag.end;
        readHeaderValue(variables.back().name);
    }
    if (!m_reader.is(schema::sectionEnd))
    {
        m_reader.refuse(schema::sectionEnd);
    }
}

void TagFileScanner::readHeaderValue(std::string_view variable)
{
    if (variable == schema::versionVariable)
    {
        takeVersion();
    }
    else if (variable == schema::codePageVariable)
    {
        m_file.m_codePage = trimmed(m_tag.value);
    }
    else if (valueType(m_tag.code) == ValueType::int16 && m_tag.value.starts_with(' '))
    {
        m_file.m_style.padIntegers = true;
    }
}

void TagFileScanner::readRecords()
{
    m_reader.nextButComments();
    if (m_tag.code != schema::recordType)
    {
        m_reader.refuse("a record (group code 0)");
    }
    constexpr std::size_t recordsBetween = 1 << 13;
    while (!m_reader.is(schema::sectionEnd))
    {
        readRecord();
        if (m_file.m_records.size() % recordsBetween == 0)
        {
            tellProgress();
        }
    }
}

void TagFileScanner::tellProgress() const
{
    if (m_progress)
    {
        m_progress(double(m_tag.begin) / double(m_file.m_size));
    }
}

// Reads a record, from its first tag to that of the next record, which is the current tag
// afterwards.
void TagFileScanner::readRecord()
{
    if (m_reader.is(schema::sectionStart) || m_reader.is(schema::endOfFile))
    {
        m_reader.refuse(schema::sectionEnd);
    }
    const std::string_view type = trimmed(m_tag.value);
    if (type.empty())
    {
        m_reader.refuse("a record's type");
    }
    Record record{m_tag.begin, 0, 0, m_tag.line, typeIndex(type)};
    record.handle = readHandle(schema::handleOf(type));
    m_reader.skipTo(schema::recordType);
    record.end = m_tag.begin;
    m_file.m_records.push_back(record);
    m_file.m_highestHandle = std::max(m_file.m_highestHandle, record.handle);
}

// Returns the record's handle. The handle comes before the record's own data. There, its code means
// something else: the sort handles of a SORTENTSTABLE, or anything in an XRECORD or between the
// braces of a group 102. Returns 0 if the record has no handle. Notes an empty or zero handle for
// repair.
std::uint64_t TagFileScanner::readHandle(Code handleCode)
{
    bool inBraces = false;
    for (m_reader.next(); m_tag.code != schema::recordType && m_tag.code != schema::subclass;
         m_reader.next())
    {
        if (m_tag.code == schema::list)
        {
            inBraces = trimmed(m_tag.value).starts_with('{');
        }
        else if (m_tag.code == handleCode && !inBraces)
        {
            break;
        }
    }
    if (m_tag.code != handleCode)
    {
        return 0;
    }
    const std::uint64_t handle = trimmed(m_tag.value).empty() ? 0 : m_file.handle(m_tag);
    if (handle == 0)
    {
        m_file.m_repaired.push_back(m_file.m_records.size());  // the future index of the record
    }
    return handle;
}

void TagFileScanner::skipContents()
{
    do
    {
        m_reader.next();
    } while (!m_reader.is(schema::sectionEnd) && !m_reader.is(schema::sectionStart) &&
             !m_reader.is(schema::endOfFile));
    if (!m_reader.is(schema::sectionEnd))
    {
        m_reader.refuse(schema::sectionEnd);
    }
}

// Takes the style from the first tag of the first section, whose code has one digit.
void TagFileScanner::takeStyle()
{
    const std::string_view bytes = m_file.bytes();
    const std::size_t lineEnd = bytes.find('\n', m_tag.begin);
    const bool crLf = bytes[lineEnd - 1] == '\r';
    const std::size_t width = lineEnd - crLf - m_tag.begin;
    m_file.m_style.newline = crLf ? "\r\n" : "\n";
    m_file.m_style.codeWidth = static_cast<int>(std::min<std::size_t>(width, 6));
}

void TagFileScanner::takeVersion()
{
    m_file.m_release = findRelease(trimmed(m_tag.value));
    if (m_file.m_release == nullptr)
    {
        m_file.refuseValue(m_tag, readableVersions);
    }
}

void TagFileScanner::requireKnownCodePage() const
{
    if (CodePage::isKnown(*m_file.m_release, m_file.m_codePage))
    {
        return;
    }
    const Tag tag = *m_file.tags(*m_file.header(schema::codePageVariable)).begin();
    m_file.refuseValue(tag, "a known code page");
}

// Allows only what programs write after a drawing: an empty line, the old end mark Ctrl-Z, or the
// zeros that fill a block.
void TagFileScanner::requireNothingAfterEof() const
{
    constexpr std::string_view blanks(" \t\r\n\x1a\0", 6);
    if (m_reader.rest().find_first_not_of(blanks) != std::string_view::npos)
    {
        m_file.refuse(m_reader.nextLine(), "nothing after EOF", "more");
    }
}

// Returns true if two records share a handle. Handles mostly ascend in a file, and only the others
// have to be sorted.
bool TagFileScanner::sharesHandles() const
{
    std::vector<std::uint64_t> ascending, others;
    ascending.reserve(m_file.m_records.size());
    std::uint64_t last = 0;
    for (const Record& record : m_file.m_records)
    {
        if (record.handle > last)
        {
            last = record.handle;
            ascending.push_back(last);
        }
        else if (record.handle != 0)
        {
            others.push_back(record.handle);
        }
    }
    std::ranges::sort(others);
    return std::ranges::adjacent_find(others) != others.end() ||
           std::ranges::any_of(others, [&ascending](std::uint64_t handle)
                               { return std::ranges::binary_search(ascending, handle); });
}

// Finds records that share a handle. The first of them keeps it.
void TagFileScanner::findSharedHandles()
{
    if (!sharesHandles())
    {
        return;
    }
    std::unordered_set<std::uint64_t> taken;
    for (std::size_t i = 0; i < m_file.m_records.size(); ++i)
    {
        const std::uint64_t handle = m_file.m_records[i].handle;
        if (handle != 0 && !taken.insert(handle).second)
        {
            m_file.m_repaired.push_back(i);
        }
    }
    std::ranges::sort(m_file.m_repaired);
}

void TagFileScanner::repairHandles()
{
    if (m_file.m_highestHandle > UINT64_MAX - m_file.m_repaired.size())
    {
        m_file.refuse(1, "handles that leave room for others", "one above all others");
    }
    for (const std::size_t index : m_file.m_repaired)
    {
        m_file.m_records[index].handle = ++m_file.m_highestHandle;
    }
}

std::uint32_t TagFileScanner::typeIndex(std::string_view name)
{
    if (name == m_lastType)
    {
        return m_lastTypeIndex;
    }
    const auto index = static_cast<std::uint32_t>(m_file.m_types.size());
    const auto [found, isNew] = m_typeIndexes.try_emplace(name, index);
    if (isNew)
    {
        m_file.m_types.push_back(name);
    }
    m_lastType = name;
    m_lastTypeIndex = found->second;
    return found->second;
}
}  // namespace host::dxf
