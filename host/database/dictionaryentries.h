// The entries of a dictionary.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "dbdict.h"
#include "host/database/stub.h"

// At most one entry of each name is not erased. An anonymous entry gets a name that no entry has
// had before, erased entries included. Accessors return [borrowed] parts that live as long as the
// dictionary.
struct AcDbDictionary::Internals
{
public:
    struct Entry
    {
        std::wstring key;
        AcDbStub* stub;
        bool loaded;  // the file had the entry
    };

    static Internals& of(const AcDbDictionary& dictionary) { return *dictionary.m_internals; }

    // Adds an entry of the file. The number of an anonymous entry counts as used.
    void addLoaded(const std::wstring& key, AcDbStub* stub);
    // Returns the entry of that name, in any letter case [borrowed]. Returns nullptr if there is no
    // such entry or all are erased.
    AcDbStub* find(const std::wstring& key) const;
    // Returns the key under which an entry is stored: `asked`, or for an anonymous entry "*A" and
    // the next number that makes a new key.
    std::wstring keyFor(const std::wstring& asked);
    // Stores an entry under the key. Erases the entry that had the key before.
    void put(const std::wstring& key, AcDbStub* stub);

    const std::vector<Entry>& inOrder() const { return m_entries; }

private:
    void add(Entry entry);

    std::vector<Entry> m_entries;
    std::unordered_set<std::wstring> m_foldedKeys;  // of all entries
    std::uint64_t m_lastAnonymous = 0;              // the largest n of "*An"; wraps around
};

namespace host
{
using DictionaryEntries = AcDbDictionary::Internals;
}  // namespace host
