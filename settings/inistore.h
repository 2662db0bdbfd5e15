// Sections of keys and their texts, and the file they are kept in.
#pragma once

#include <cwchar>
#include <map>

#include "hostapi/host.h"

// Order of names: letters count as lower case, by the runtime's _wcsicmp.
struct NameBefore
{
    bool operator()(const CString& left, const CString& right) const
    {
        return _wcsicmp(left, right) < 0;
    }
};

// Values by key name.
typedef std::map<CString, CString, NameBefore> IniSection;

// Names are stripped of blanks and tabs at both ends before use and found whatever their case; the
// spelling first met stays. Values stand as given.
class IniStore
{
public:
    void clear();

    // Replaces the contents. False: the file could not be opened, and the store is empty.
    bool readFile(const CString& path);

    // False: the file could not be opened for writing or not be written whole (a full disk).
    // A character that the narrow code page cannot hold goes out as "?".
    bool writeFile(const CString& path) const;

    // Null if there is none. [borrowed] until the section is removed.
    const IniSection* findSection(const CString& name) const;
    IniSection& getOrCreateSection(const CString& name);
    void removeSection(const CString& name);

    // "0" when the section or the key is missing.
    CString getValue(const CString& section, const CString& key) const;

    // Makes the section and the key when missing.
    void setValue(const CString& section, const CString& key, const CString& text);

private:
    IniSection* readLine(const CString& line, IniSection* current);

    std::map<CString, IniSection, NameBefore> m_sections;
};

// Value of the key, null if there is none. [borrowed] until the key is removed.
const CString* findKey(const IniSection& section, const CString& name);

// Value of the key, to be read or replaced; empty for a new key.
CString& getOrCreateKey(IniSection& section, const CString& name);
