// Fills a TagFile from its bytes in one pass, or refuses the bytes.
#pragma once

#include <unordered_map>
#include <unordered_set>

#include "host/dxf/tagreader.h"

namespace host::dxf
{
class TagFileScanner
{
public:
    TagFileScanner(TagFile& file, const Progress& progress);  // both are [borrowed]

    void scan();  // throws an Error if the bytes are refused

private:
    void refuseOtherFormats() const;
    void readSection();
    void readHeader();
    void readHeaderValue(std::string_view variable);
    void readRecords();
    void readRecord();
    void tellProgress() const;
    std::uint64_t readHandle(Code handleCode);
    void skipContents();

    void takeStyle();
    void takeVersion();
    void requireKnownCodePage() const;
    void requireNothingAfterEof() const;
    bool sharesHandles() const;
    void findSharedHandles();
    void repairHandles();

    std::uint32_t typeIndex(std::string_view name);

    TagFile& m_file;
    const Progress& m_progress;
    TagReader m_reader;
    const Tag& m_tag = m_reader.tag();

    std::unordered_set<std::string_view> m_sectionNames;
    std::unordered_map<std::string_view, std::uint32_t> m_typeIndexes;
    std::string_view m_lastType;  // most records have the type of the record before
    std::uint32_t m_lastTypeIndex = 0;
};
}  // namespace host::dxf
