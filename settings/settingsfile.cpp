#include "settings/settingsfile.h"

#include "output/numbers.h"
#include "settings/options.h"

namespace
{
const wchar_t gridSection[] = L"GRID";

void fromText(const CString& text, int& value)
{
    value = StrToIntW(text);
}

void fromText(const CString& text, double& value)
{
    value = parseReal(text);
}

void fromText(const CString& text, CString& value)
{
    value = text;
}

CString toText(int value)
{
    return formatInt(value);
}

CString toText(double value)
{
    const int decimals = 4;
    return formatReal(value, decimals);
}

CString toText(const CString& value)
{
    return value;
}

struct ReadKey
{
    const IniStore& store;
    GridSettings& settings;

    template <class Row>
    void operator()(const Row& option) const
    {
        fromText(store.getValue(gridSection, option.key), settings.*option.member);
    }
};

struct WriteKey
{
    const GridSettings& settings;
    IniStore& store;

    template <class Row>
    void operator()(const Row& option) const
    {
        store.setValue(gridSection, option.key, toText(settings.*option.member));
    }
};
}  // namespace

CString settingsFilePath(HMODULE module)
{
    const DWORD capacity = 521;
    wchar_t buffer[capacity] = L"";
    if (GetModuleFileNameW(module, buffer, capacity) == capacity)
    {
        return L"";  // the path is cut, so the rest may name another folder
    }
    const CString modulePath(buffer);
    const int folderEnd = modulePath.ReverseFind(L'\\');
    if (folderEnd < 0)
    {
        return L"properties.ini";
    }
    return modulePath.Left(folderEnd) + L"\\properties.ini";
}

SettingsFile::SettingsFile(const CString& path) : m_path(path) {}

void SettingsFile::load(GridSettings& settings)
{
    if (!m_store.readFile(m_path) || m_store.findSection(gridSection) == nullptr)
    {
        return;
    }
    // A missing key reads as "0" instead of the default. A compatibility rule keeps this: files
    // that users have shortened by hand rely on it.
    const ReadKey read = {m_store, settings};
    forEachOption(read);
}

bool SettingsFile::save(const GridSettings& settings)
{
    m_store.removeSection(gridSection);
    const WriteKey write = {settings, m_store};
    forEachOption(write);
    return m_store.writeFile(m_path);
}
