// Finds the records of one table by their names.
#pragma once

#include <cwchar>
#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

#include "dbsymtb.h"

// Ignores letter case. Of two records with the same name, `find` returns the first. A record stays
// after it was added, erased or not, so that the order and the names never lose a record. Accessors
// return [borrowed] parts that live as long as the table.
struct AcDbSymbolTable::Internals
{
public:
    static Internals& of(const AcDbSymbolTable& table) { return *table.m_internals; }

    // Adds a record. Returns the name as the table keeps it [borrowed], valid as long as the table
    // lives.
    const std::wstring& add(const std::wstring& name, AcDbStub* record);
    // Returns the record [borrowed], or nullptr if the table never had one of that name.
    AcDbStub* find(const wchar_t* name)
    {
        return m_last != nullptr && std::wcscmp(m_lastName.c_str(), name) == 0 ? m_last
                                                                               : findOther(name);
    }
    // Returns the records in the order in which they were added [borrowed].
    const std::vector<AcDbStub*>& inOrder() const { return m_order; }

private:
    AcDbStub* findOther(const wchar_t* name);

    std::vector<AcDbStub*> m_order;
    std::deque<std::wstring> m_names;
    std::unordered_map<std::wstring, AcDbStub*> m_byFoldedName;
    // The last answer. Every entity of a grid looks up its layer, so the same record is looked up a
    // million times in a row.
    std::wstring m_lastName;
    AcDbStub* m_last = nullptr;
};

namespace host
{
using RecordNames = AcDbSymbolTable::Internals;
}  // namespace host
