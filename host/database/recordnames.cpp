#include "host/database/recordnames.h"

#include "host/text/foldcase.h"

const std::wstring& AcDbSymbolTable::Internals::add(const std::wstring& name, AcDbStub* record)
{
    m_order.push_back(record);
    m_byFoldedName.emplace(host::foldCase(name), record);
    return m_names.emplace_back(name);
}

[[gnu::noinline]] AcDbStub* AcDbSymbolTable::Internals::findOther(const wchar_t* name)
{
    const auto found = m_byFoldedName.find(host::foldCase(name));
    if (found == m_byFoldedName.end())
    {
        return nullptr;
    }
    m_last = found->second;
    m_lastName = name;
    return m_last;
}
