// Reads and writes header variables by their tables.
#pragma once

#include <map>

#include "host/database/drawingstate.h"
#include "host/dxf/edits.h"
#include "host/dxf/schema/header.h"
#include "host/dxf/values.h"

namespace host::dxf
{
using KeptVariables = std::map<std::wstring, VariableValue>;  // the names lack the "$"

// Copy the kept value into `value`, or leave `value` unchanged if the kept value has another type.
void takeKept(const VariableValue& kept, int& value);
void takeKept(const VariableValue& kept, double& value);
void takeKept(const VariableValue& kept, std::wstring& value);
void takeKept(const VariableValue& kept, schema::Handle& value);
void takeKept(const VariableValue& kept, AcGePoint3d& value);
void takeKept(const VariableValue& kept, AcGeVector3d& value);

// Reads the variables of a table. A variable that is missing or has another type gets its default.
// `prefix` is put before each name of the table.
template <class Variables, class Rows>
Variables readVariables(const Rows& rows, const KeptVariables& kept, const std::string& prefix = {})
{
    Variables variables;
    schema::forEachRow(rows,
                       [&](const auto& row)
                       {
                           const std::string name = prefix + std::string(row.name);
                           const auto found = kept.find(std::wstring(name.begin(), name.end()));
                           if (found != kept.end())
                           {
                               takeKept(found->second, variables.*row.member);
                           }
                       });
    return variables;
}

// Changes header variables in a file.
struct HeaderEdits
{
    Edits& edits;
    const CodePage& codePage;

    // Sets one variable.
    template <class Row, class Variables>
    void set(const Row& row, const Variables& variables, const std::string& prefix) const
    {
        edits.setHeader("$" + prefix + std::string(row.name), [&](TagWriter& writer)
                        { putValue(writer, row.code, variables.*row.member, codePage); });
    }

    // Sets all variables of a table.
    template <class Variables, class Rows>
    void setAll(const Rows& rows, const Variables& variables, const std::string& prefix = {}) const
    {
        schema::forEachRow(rows, [&](const auto& row) { set(row, variables, prefix); });
    }

    // Sets the variables of a table that differ from `before`.
    template <class Variables, class Rows>
    void setChanged(const Rows& rows, const Variables& before, const Variables& now) const
    {
        schema::forEachRow(rows,
                           [&](const auto& row)
                           {
                               if (!same(before.*row.member, now.*row.member))
                               {
                                   set(row, now, {});
                               }
                           });
    }
};

// Returns true if the file has all the variables of the table.
template <class Rows>
bool states(const TagFile& file, const Rows& rows)
{
    bool all = true;
    schema::forEachRow(
        rows, [&](const auto& row) { all &= file.header("$" + std::string(row.name)) != nullptr; });
    return all;
}
}  // namespace host::dxf
