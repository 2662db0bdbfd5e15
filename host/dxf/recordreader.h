// Reads records from tags by their tables.
#pragma once

#include <algorithm>
#include <span>

#include "host/dxf/owntags.h"
#include "host/dxf/values.h"

namespace host::dxf
{
template <class Record>
class RowReader
{
public:
    RowReader(const TagSource& source, Record& record, std::span<const Code> wanted)
        : m_source(source), m_record(record), m_wanted(wanted)
    {
    }

    void take(const Tag& tag, bool inList)
    {
        m_tag = &tag;
        m_inList = inList;
    }

    template <class Owner, class Value>
    void operator()(const schema::Row<Owner, Value>& row) const
    {
        if (!m_inList && isWanted(row.code))
        {
            takeValue(m_source, *m_tag, row.code, m_record.*row.member);
        }
    }

    template <class Owner>
    void operator()(const schema::ListRow<Owner>& row) const
    {
        if (m_inList && isWanted(row.code))
        {
            takeValue(m_source, *m_tag, row.code, m_record.*row.member);
        }
    }

    void operator()(const schema::SubclassRow&) const {}

private:
    bool isWanted(Code code) const
    {
        return m_wanted.empty() || std::ranges::find(m_wanted, code) != m_wanted.end();
    }

    const TagSource& m_source;
    Record& m_record;
    const std::span<const Code> m_wanted;
    const Tag* m_tag = nullptr;
    bool m_inList = false;
};

// Reads a record into `into`. An attribute that the record does not state keeps its value. Throws
// an Error for a value that its attribute cannot have. If `wanted` names attributes, only these are
// read, so that a damaged value that no code needs does not prevent a drawing from opening.
template <class Table>
void readInto(typename Table::RecordType& into, const Table& table, const TagSource& source,
              const Record& record, std::span<const Code> wanted = {})
{
    RowReader reader(source, into, wanted);
    BraceLists lists;
    for (const Tag& tag : ownTags(source.file, record))
    {
        reader.take(tag, lists.take(tag));
        schema::forEachRow(table.rows, reader);
    }
}

template <class Table>
typename Table::RecordType readRecord(const Table& table, const TagSource& source,
                                      const Record& record, std::span<const Code> wanted = {})
{
    typename Table::RecordType read;
    readInto(read, table, source, record, wanted);
    return read;
}
}  // namespace host::dxf
