#include "settings/inistore.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cwchar>

namespace
{
CString stripped(CString text, const wchar_t* characters)
{
    text.TrimRight(characters);
    text.TrimLeft(characters);
    return text;
}

CString strippedName(const CString& name)
{
    return stripped(name, L" \t");
}

// Adds the key of a line to the section. A compatibility rule keeps the leading blanks of the
// value: "HorStep= 10" reads as not set. A line without "=" becomes a key whose name and value are
// the line, so that a remark behind "#" in another section survives a save.
void readKey(const CString& line, IniSection& section)
{
    const int equals = line.Find(L'=');
    if (equals == 0 || (equals == 1 && line[0] == L'#'))
    {
        return;
    }
    const CString name = equals < 0 ? line : line.Left(equals);
    getOrCreateKey(section, name) = equals < 0 ? line : line.Mid(equals + 1);
}

// Returns the line with "?" for each character that the code page lacks. Runtimes differ on what
// fwprintf does at such a character: some drop the rest of the line with its line feed, and with
// them the next key.
CString inCodePage(CString line)
{
    char bytes[MB_LEN_MAX];
    for (int i = 0; i < line.GetLength(); ++i)
    {
        if (wctomb(bytes, line[i]) < 0)
        {
            line.SetAt(i, L'?');
        }
    }
    return line;
}

// A text file. The destructor closes it on every way out.
class TextFile
{
public:
    TextFile(const wchar_t* path, const wchar_t* mode) : m_file(_wfopen(path, mode)) {}
    ~TextFile() { close(); }

    bool isOpen() const { return m_file != nullptr; }
    FILE* get() const { return m_file; }
    // Closes the file if it is open. Returns false when the runtime cannot write what it has
    // buffered.
    bool close()
    {
        FILE* const file = m_file;
        m_file = nullptr;
        return file == nullptr || fclose(file) == 0;
    }

private:
    TextFile(const TextFile&);
    TextFile& operator=(const TextFile&);

    FILE* m_file;
};

bool writeLine(FILE* file, const CString& line)
{
    return fwprintf(file, L"%s\n", static_cast<const wchar_t*>(inCodePage(line))) >= 0;
}

bool writeSection(FILE* file, const CString& name, const IniSection& section)
{
    bool written = writeLine(file, L"[" + name + L"]");
    for (auto key = section.begin(); key != section.end() && written; ++key)
    {
        written = writeLine(file, key->first + L"=" + key->second);
    }
    return written;
}
}  // namespace

void IniStore::clear()
{
    m_sections.clear();
}

// The file is read as UTF-8, although it is written in the narrow code page: files written by hand
// are UTF-8, and only ASCII has to survive both ways. By a compatibility rule a last line without a
// line feed is ignored.
bool IniStore::readFile(const CString& path)
{
    clear();
    const TextFile file(path, L"r, ccs=UTF-8");
    if (!file.isOpen())
    {
        return false;
    }
    IniSection* current = nullptr;
    CString line;
    for (wint_t c = fgetwc(file.get()); c != WEOF; c = fgetwc(file.get()))
    {
        if (c != L'\n')
        {
            line += static_cast<wchar_t>(c);
            continue;
        }
        current = readLine(stripped(line, L" \t\r\n"), current);
        line.Empty();
    }
    return true;
}

IniSection* IniStore::readLine(const CString& line, IniSection* current)
{
    if (line.IsEmpty())
    {
        return current;
    }
    const int last = line.GetLength() - 1;
    if (line[0] == L'[' && line.ReverseFind(L']') == last)
    {
        return &getOrCreateSection(line.Mid(1, last - 1));
    }
    if (current != nullptr)
    {
        readKey(line, *current);
    }
    return current;
}

bool IniStore::writeFile(const CString& path) const
{
    TextFile file(path, L"w");
    if (!file.isOpen())
    {
        return false;
    }
    bool written = true;
    for (auto section = m_sections.begin(); section != m_sections.end() && written; ++section)
    {
        written = writeSection(file.get(), section->first, section->second);
    }
    // The runtime buffers lines until the file is closed, so a full disk may show only then.
    return file.close() && written;
}

const IniSection* IniStore::findSection(const CString& name) const
{
    const auto found = m_sections.find(strippedName(name));
    return found == m_sections.end() ? nullptr : &found->second;
}

IniSection& IniStore::getOrCreateSection(const CString& name)
{
    return m_sections[strippedName(name)];
}

void IniStore::removeSection(const CString& name)
{
    m_sections.erase(strippedName(name));
}

CString IniStore::getValue(const CString& section, const CString& key) const
{
    const IniSection* keys = findSection(section);
    const CString* value = keys == nullptr ? nullptr : findKey(*keys, key);
    return value == nullptr ? CString(L"0") : *value;
}

void IniStore::setValue(const CString& section, const CString& key, const CString& text)
{
    getOrCreateKey(getOrCreateSection(section), key) = text;
}

const CString* findKey(const IniSection& section, const CString& name)
{
    const auto found = section.find(strippedName(name));
    return found == section.end() ? nullptr : &found->second;
}

CString& getOrCreateKey(IniSection& section, const CString& name)
{
    return section[strippedName(name)];
}
