// Writes records as tags by their tables.
#pragma once

#include "host/dxf/schema/structure.h"
#include "host/dxf/tagwriter.h"
#include "host/dxf/values.h"

namespace host::dxf
{
// The release and the code page of the output file; they limit what it can hold.
struct FileForm
{
    const Release& release;
    const CodePage& codePage;
};

// Returns true if files of the release have an attribute that was introduced in `since`.
inline bool has(const Release& release, schema::Since since)
{
    return since == schema::Since::r12 || (since == schema::Since::r13 && release.objects) ||
           (since == schema::Since::r2000 && release.ownership) ||
           (since == schema::Since::r2004 && release.trueColors);
}

// Returns a record with all defaults [borrowed], which lives as long as the program.
template <class Record>
const Record& usual()
{
    static const Record record;
    return record;
}

template <class Out, class Record>
class RowWriter
{
public:
    RowWriter(Out& out, const Record& record, const FileForm& form)
        : m_out(out), m_record(record), m_form(form)
    {
    }

    template <class Owner, class Value>
    void operator()(const schema::Row<Owner, Value>& row) const
    {
        if (has(m_form.release, row.since) && !isLeftOut(row))
        {
            putValue(m_out, row.code, m_record.*row.member, m_form.codePage);
        }
    }

    template <class Owner>
    void operator()(const schema::ListRow<Owner>& row) const
    {
        if (has(m_form.release, row.since) && !(m_record.*row.member).empty())
        {
            m_out.text(schema::list, row.name);
            putValue(m_out, row.code, m_record.*row.member, m_form.codePage);
            m_out.text(schema::list, "}");
        }
    }

    void operator()(const schema::SubclassRow& row) const
    {
        if (has(m_form.release, schema::Since::r13))
        {
            m_out.text(schema::subclass, row.name);
        }
    }

private:
    template <class Owner, class Value>
    bool isLeftOut(const schema::Row<Owner, Value>& row) const
    {
        const bool may =
            row.when == schema::When::unlessUsual || (row.when == schema::When::unlessUsualInR12 &&
                                                      !has(m_form.release, schema::Since::r13));
        return may && same(m_record.*row.member, usual<Record>().*row.member);
    }

    Out& m_out;
    const Record& m_record;
    const FileForm& m_form;
};

// Writes a record. `Out` has the functions of a TagWriter.
template <class Out, class Table>
void writeRecord(Out& out, const Table& table, const typename Table::RecordType& record,
                 const FileForm& form)
{
    if (!table.type.empty())
    {
        out.text(schema::recordType, table.type);
    }
    schema::forEachRow(table.rows, RowWriter(out, record, form));
}
}  // namespace host::dxf
