// The records of one table by their names.
#pragma once

#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

#include "dbsymtb.h"

// Letter case does not count. Of two records with one name the first is found; a record that was
// added stays, erased or not, so that order and names never lose one.
struct AcDbSymbolTable::Internals
{
public:
    static Internals& of(const AcDbSymbolTable& table) { return *table.m_internals; }

    // The name as the table keeps it, for as long as the table lives.
    const std::wstring& add(const std::wstring& name, AcDbStub* record);
    // Null when the table never had such a record.
    AcDbStub* find(const wchar_t* name);
    // As they were added.
    const std::vector<AcDbStub*>& inOrder() const { return m_order; }

private:
    std::vector<AcDbStub*> m_order;
    std::deque<std::wstring> m_names;
    std::unordered_map<std::wstring, AcDbStub*> m_byFoldedName;
    // One record is looked up a million times in a row: for every entity of a grid.
    std::wstring m_lastName;
    AcDbStub* m_last = nullptr;
};

namespace host
{
using RecordNames = AcDbSymbolTable::Internals;
}  // namespace host
