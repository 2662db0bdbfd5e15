// Records from tags, by their tables.
#pragma once

#include "host/dxf/owntags.h"
#include "host/dxf/values.h"

namespace host::dxf
{
template <class Record>
class RowReader
{
public:
    RowReader(const TagSource& source, Record& record) : m_source(source), m_record(record) {}

    void take(const Tag& tag, bool inList)
    {
        m_tag = &tag;
        m_inList = inList;
    }

    template <class Owner, class Value>
    void operator()(const schema::Row<Owner, Value>& row) const
    {
        if (!m_inList)
        {
            takeValue(m_source, *m_tag, row.code, m_record.*row.member);
        }
    }

    template <class Owner>
    void operator()(const schema::ListRow<Owner>& row) const
    {
        if (m_inList)
        {
            takeValue(m_source, *m_tag, row.code, m_record.*row.member);
        }
    }

    void operator()(const schema::SubclassRow&) const {}

private:
    const TagSource& m_source;
    Record& m_record;
    const Tag* m_tag = nullptr;
    bool m_inList = false;
};

// What the record does not state stays as it is in `into`. Throws an Error for a value that its
// attribute cannot have.
template <class Table>
void readInto(typename Table::RecordType& into, const Table& table, const TagSource& source,
              const Record& record)
{
    RowReader reader(source, into);
    BraceLists lists;
    for (const Tag& tag : ownTags(source.file, record))
    {
        reader.take(tag, lists.take(tag));
        schema::forEachRow(table.rows, reader);
    }
}

template <class Table>
typename Table::RecordType readRecord(const Table& table, const TagSource& source,
                                      const Record& record)
{
    typename Table::RecordType read;
    readInto(read, table, source, record);
    return read;
}
}  // namespace host::dxf
