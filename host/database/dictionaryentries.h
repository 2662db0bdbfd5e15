// What a dictionary holds.
#pragma once

#include <string>
#include <vector>

#include "dbdict.h"
#include "host/database/stub.h"

// At most one entry with a name is not erased. Numbers of anonymous entries only go up: that of an
// erased one is not given again.
struct AcDbDictionary::Internals
{
public:
    struct Entry
    {
        std::wstring key;
        AcDbStub* stub;
        bool loaded;  // stood in the file
    };

    static Internals& of(const AcDbDictionary& dictionary) { return *dictionary.m_internals; }

    // An entry of the file; one that is anonymous takes its number with it.
    void addLoaded(const std::wstring& key, AcDbStub* stub);
    // The entry of that name, in any letter case; null when there is none but an erased one.
    AcDbStub* find(const std::wstring& key) const;
    // The key that an entry is put under: for an anonymous one "*A" and the next number.
    std::wstring keyFor(const std::wstring& asked);
    // Erases the entry that had the key before.
    void put(const std::wstring& key, AcDbStub* stub);

    const std::vector<Entry>& inOrder() const { return m_entries; }

private:
    std::vector<Entry> m_entries;
    unsigned m_lastAnonymous = 0;  // n of the newest "*An"
};

namespace host
{
using DictionaryEntries = AcDbDictionary::Internals;
}  // namespace host
