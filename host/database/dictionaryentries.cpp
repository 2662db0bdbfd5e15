#include "host/database/dictionaryentries.h"

#include <algorithm>
#include <cwchar>

#include "host/text/foldcase.h"

void AcDbDictionary::Internals::addLoaded(const std::wstring& key, AcDbStub* stub)
{
    m_entries.push_back({key, stub, true});
    if (key.size() > 2 && key.compare(0, 2, L"*A") == 0)
    {
        const unsigned long number = std::wcstoul(key.c_str() + 2, nullptr, 10);
        m_lastAnonymous = std::max(m_lastAnonymous, unsigned(number));
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
    return asked[0] == L'*' ? L"*A" + std::to_wstring(++m_lastAnonymous) : asked;
}

void AcDbDictionary::Internals::put(const std::wstring& key, AcDbStub* stub)
{
    if (AcDbStub* former = find(key))
    {
        former->setErased(true);
    }
    m_entries.push_back({key, stub, false});
}
