#include "host/database/recordnames.h"

#include <cwchar>

#include "host/text/foldcase.h"

const std::wstring& AcDbSymbolTable::Internals::add(const std::wstring& name, AcDbStub* record)
{
    m_order.push_back(record);
    m_byFoldedName.emplace(host::foldCase(name), record);
    return m_names.emplace_back(name);
}

AcDbStub* AcDbSymbolTable::Internals::find(const wchar_t* name)
{
    if (m_last != nullptr && std::wcscmp(m_lastName.c_str(), name) == 0)
    {
        return m_last;
    }
    const auto found = m_byFoldedName.find(host::foldCase(name));
    if (found == m_byFoldedName.end())
    {
        return nullptr;
    }
    m_last = found->second;
    m_lastName = name;
    return m_last;
}
