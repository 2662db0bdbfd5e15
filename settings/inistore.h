// Keeps sections of keys with their texts, and reads and writes the file that holds them.
#pragma once

#include <cwchar>
#include <map>

#include "hostapi/host.h"

// Orders names without regard to letter case: letters count as lower case, by the runtime's
// _wcsicmp.
struct NameBefore
{
    bool operator()(const CString& left, const CString& right) const
    {
        return _wcsicmp(left, right) < 0;
    }
};

// The values of one section by the names of their keys.
typedef std::map<CString, CString, NameBefore> IniSection;

// The sections of one file. Blanks and tabs at both ends of a name are removed before use. Letter
// case does not matter when a name is looked up, and the first spelling stays. Values are kept as
// they are given.
class IniStore
{
public:
    // Removes all sections.
    void clear();

    // Replaces the contents with those of the file. Returns false when the file cannot be opened;
    // the store is then empty.
    bool readFile(const CString& path);

    // Writes all sections to the file. A character that the narrow code page cannot hold is written
    // as "?". Returns false when the file cannot be opened for writing or is not written
    // completely, for example on a full disk.
    bool writeFile(const CString& path) const;

    // Returns the section, or null if it does not exist. The section is [borrowed] until it is
    // removed.
    const IniSection* findSection(const CString& name) const;

    // Returns the section and creates it if it does not exist. The section is [borrowed] until it
    // is removed.
    IniSection& getOrCreateSection(const CString& name);

    // Removes the section with its keys. A name that is not found has no effect.
    void removeSection(const CString& name);

    // Returns the value of the key, or "0" when the section or the key is missing.
    CString getValue(const CString& section, const CString& key) const;

    // Sets the value of the key and creates the section and the key if they are missing.
    void setValue(const CString& section, const CString& key, const CString& text);

private:
    // Adds one line of the file to the current section, which is null before the first section.
    // Returns the section of the next line.
    IniSection* readLine(const CString& line, IniSection* current);

    std::map<CString, IniSection, NameBefore> m_sections;
};

// Returns the value of the key, or null if the key does not exist. The value is [borrowed] until
// the key is removed.
const CString* findKey(const IniSection& section, const CString& name);

// Returns the value of the key, which the caller may replace. A missing key is created with an
// empty value. The value is [borrowed] until the key is removed.
CString& getOrCreateKey(IniSection& section, const CString& name);
