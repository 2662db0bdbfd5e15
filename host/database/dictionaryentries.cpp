#include "host/database/dictionaryentries.h"

#include <algorithm>
#include <cwchar>
#include <utility>

#include "host/text/foldcase.h"

void AcDbDictionary::Internals::addLoaded(const std::wstring& key, AcDbStub* stub)
{
    add({key, stub, true});
    if (key.starts_with(L"*A"))
    {
        const std::uint64_t number = std::wcstoull(key.c_str() + 2, nullptr, 10);
        m_lastAnonymous = std::max(m_lastAnonymous, number);
    }
}

AcDbStub* AcDbDictionary::Internals::find(const std::wstring& key) const
{
    for (const Entry& entry : m_entries)
    {
        if (!entry.stub->erased() && host::equalNoCase(entry.key, key))
        {
            return entry.stub;
        }
    }
    return nullptr;
}

std::wstring AcDbDictionary::Internals::keyFor(const std::wstring& asked)
{
    if (asked[0] != L'*')
    {
        return asked;
    }
    std::wstring key;
    do
    {
        key = L"*A" + std::to_wstring(++m_lastAnonymous);
    } while (m_foldedKeys.contains(host::foldCase(key)));
    return key;
}

void AcDbDictionary::Internals::put(const std::wstring& key, AcDbStub* stub)
{
    if (AcDbStub* former = find(key))
    {
        former->setErased(true);
    }
    add({key, stub, false});
}

void AcDbDictionary::Internals::add(Entry entry)
{
    m_foldedKeys.insert(host::foldCase(entry.key));
    m_entries.push_back(std::move(entry));
}
