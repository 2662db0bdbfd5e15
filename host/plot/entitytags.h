// Reads one entity by the tables of the schema.
#pragma once

#include <algorithm>
#include <span>

#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/dxf/schema/table.h"
#include "host/dxf/values.h"
#include "host/plot/sink.h"

namespace host::plot
{
namespace schema = dxf::schema;
using dxf::Code;

// The entity's own tags, without reactors, extension dictionaries and the data of applications. A
// number that cannot be read throws a dxf::Error. Views are [borrowed] from the file.
class EntityTags
{
public:
    // Both are [borrowed] and outlive this object, as do the file and the code page of the source.
    EntityTags(const dxf::TagSource& source, const dxf::Record& record);

    std::string_view type() const { return m_source.file.typeName(m_record); }
    std::span<const dxf::Tag> all() const { return m_tags; }
    const dxf::TagSource& source() const { return m_source; }
    bool has(Code code) const { return find(code) != nullptr; }
    std::string_view text(Code code) const;  // of the first such tag, without blanks around it

    // Reads the attributes of a table. Some codes come back in a record with another meaning, so
    // the first tag of a code counts. If `wanted` names attributes, only these are read.
    template <class Table>
    typename Table::RecordType read(const Table& table, std::span<const Code> wanted = {}) const;

    // Reads a part of the record as often as it stands there. A part begins at each tag with the
    // code of its first row.
    template <class Table>
    std::vector<typename Table::RecordType> readAll(const Table& part) const;

private:
    const dxf::Tag* find(Code code) const;

    // Each reads an attribute and leaves it alone when no tag has its code.
    template <class Value>
    void take(Code code, Value& value) const;
    void take(Code code, int& value) const;
    template <class Point>
    void takePoint(Code code, Point& point) const;
    void take(Code code, schema::PlanePoint& point) const;
    void take(Code code, AcGePoint3d& point) const { takePoint(code, point); }
    void take(Code code, AcGeVector3d& vector) const { takePoint(code, vector); }
    template <class Value>
    void take(Code code, std::optional<Value>& value) const;
    template <class Value>
    void take(Code code, std::vector<Value>& values) const;

    const dxf::TagSource& m_source;
    const dxf::Record& m_record;
    std::vector<dxf::Tag> m_tags;
};

// Returns the integer of a tag; the nearest `int` for a number that is too large for it.
int integerOf(const dxf::TagSource& source, const dxf::Tag& tag);

template <class Table>
typename Table::RecordType EntityTags::read(const Table& table, std::span<const Code> wanted) const
{
    typename Table::RecordType record;
    const auto takeRow = [&]<class Row>(const Row& row)
    {
        if constexpr (requires { row.when; })  // an attribute
        {
            if (wanted.empty() || std::ranges::find(wanted, row.code) != wanted.end())
            {
                take(row.code, record.*row.member);
            }
        }
    };
    schema::forEachRow(table.rows, takeRow);
    return record;
}

template <class Table>
std::vector<typename Table::RecordType> EntityTags::readAll(const Table& part) const
{
    std::vector<typename Table::RecordType> parts;
    for (const dxf::Tag& tag : m_tags)
    {
        if (tag.code == schema::firstCode(part))
        {
            parts.emplace_back();
        }
        if (!parts.empty())
        {
            schema::forEachRow(
                part.rows, [&](const auto& row)
                { dxf::takeValue(m_source, tag, row.code, parts.back().*row.member); });
        }
    }
    return parts;
}

template <class Value>
void EntityTags::take(Code code, Value& value) const
{
    if (const dxf::Tag* tag = find(code))
    {
        dxf::takeValue(m_source, *tag, code, value);
    }
}

template <class Point>
void EntityTags::takePoint(Code code, Point& point) const
{
    take(code, point.x);
    take(code.y(), point.y);
    take(code.z(), point.z);
}

template <class Value>
void EntityTags::take(Code code, std::optional<Value>& value) const
{
    if (has(code))
    {
        take(code, value.emplace());
    }
}

template <class Value>
void EntityTags::take(Code code, std::vector<Value>& values) const
{
    for (const dxf::Tag& tag : m_tags)
    {
        dxf::takeValue(m_source, tag, code, values);
    }
}
}  // namespace host::plot
