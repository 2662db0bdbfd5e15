// Describes a kind of record by a structure and a table. The structure has a default for each
// attribute. The table has a row for each attribute, in the order of a file.
//
//     struct Circle : Entity
//     {
//         AcGePoint3d centre;
//         double radius = 1;
//     };
//     inline constexpr auto table = tableOf<Circle>("CIRCLE",
//         entityRows,
//         subclassRow("AcDbCircle"),
//         row(centre, &Circle::centre),
//         row(radius, &Circle::radius));
//
// A row does not compile if its member cannot have the type of its code. A member that is a vector
// has a tag for each value. A std::string_view holds the file's bytes with their blanks [borrowed].
//
// A table without a type describes a part of a record, which may stand there more than once; each
// part begins at the code of the first row. The codes of some parts mean something else in other
// places of the record: such a part is a sequence.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "gepnt3d.h"
#include "gevec3d.h"
#include "host/dxf/schema/code.h"

namespace host::dxf::schema
{
using Handle = std::uint64_t;  // 0: no handle
using Handles = std::vector<Handle>;

struct PlanePoint
{
    double x = 0;
    double y = 0;
};

// The first release that has an attribute.
enum class Since : unsigned char
{
    r12,
    r13,
    r2000,
    r2004,
};

enum class When : unsigned char
{
    always,
    unlessUsual,       // the default is left out
    unlessUsualInR12,  // the default is left out in R12, which has no name for it
};

template <class Record, class Value>
struct Row
{
    Code code;
    Value Record::*member;
    When when;
    Since since;
};

// A list of handles between braces. An empty list is written without its braces.
template <class Record>
struct ListRow
{
    std::string_view name;  // "{ACAD_REACTORS"
    Code code;
    Handles Record::*member;
    Since since;
};

struct SubclassRow
{
    std::string_view name;
};

template <class... Rows>
struct RowGroup
{
    std::tuple<Rows...> rows;
};

template <class Record, class Rows>
struct Table
{
    using RecordType = Record;
    std::string_view type;  // empty: part of a record
    Rows rows;
};

// A part whose tags follow each other in exactly the order of the rows. Tags may be missing.
template <class Record, class Rows>
struct Sequence : Table<Record, Rows>
{
};

template <class Value>
struct Required
{
    using Type = Value;
};

template <class Value>
struct Required<std::optional<Value>>
{
    using Type = Value;
};

template <class Value>
struct Required<std::vector<Value>>
{
    using Type = Value;
};

template <class Member>
constexpr bool fits(ValueType type)
{
    using Value = typename Required<Member>::Type;
    if constexpr (std::same_as<Value, std::wstring> || std::same_as<Value, std::string_view>)
    {
        return type == ValueType::text;
    }
    else if constexpr (std::same_as<Value, Handle>)
    {
        return type == ValueType::handle;
    }
    else if constexpr (std::same_as<Value, int>)
    {
        return isInteger(type) && type != ValueType::int64;
    }
    else
    {
        return type == ValueType::real;
    }
}

template <class Record, class Value>
consteval Row<Record, Value> row(Code code, Value Record::*member, When when = When::always,
                                 Since since = Since::r12)
{
    return fits<Value>(valueType(code)) ? Row<Record, Value>{code, member, when, since}
                                        : throw "the member cannot have the code's type";
}

template <class Record>
consteval ListRow<Record> listRow(std::string_view name, Code code, Handles Record::*member)
{
    return fits<Handles>(valueType(code)) ? ListRow<Record>{name, code, member, Since::r13}
                                          : throw "a list holds handles";
}

consteval SubclassRow subclassRow(std::string_view name)
{
    return {name};
}

template <class... Rows>
consteval RowGroup<Rows...> rowsOf(Rows... rows)
{
    return {{rows...}};
}

template <class Record, class... Rows>
consteval Table<Record, RowGroup<Rows...>> tableOf(std::string_view type, Rows... rows)
{
    return {type, {{rows...}}};
}

template <class Record, class... Rows>
consteval Table<Record, RowGroup<Rows...>> partOf(Rows... rows)
{
    return {{}, {{rows...}}};
}

template <class Record, class... Rows>
consteval Sequence<Record, RowGroup<Rows...>> sequenceOf(Rows... rows)
{
    return {{{}, {{rows...}}}};
}

// Returns the code at which a part of a record begins.
template <class Record, class One, class... Rows>
constexpr Code firstCode(const Table<Record, RowGroup<One, Rows...>>& part)
{
    return std::get<0>(part.rows.rows).code;
}

// Calls visit(row) for every row in order, including the rows of groups.
template <class... Rows, class Visit>
constexpr void forEachRow(const RowGroup<Rows...>& group, const Visit& visit);

template <class One, class Visit>
constexpr void visitRow(const One& one, const Visit& visit)
{
    if constexpr (requires { one.rows; })
    {
        forEachRow(one, visit);
    }
    else
    {
        visit(one);
    }
}

template <class... Rows, class Visit>
constexpr void forEachRow(const RowGroup<Rows...>& group, const Visit& visit)
{
    std::apply([&](const Rows&... rows) { (visitRow(rows, visit), ...); }, group.rows);
}
}  // namespace host::dxf::schema
