#include "settings/settingsfile.h"

#include <iterator>

#include "output/numbers.h"

namespace
{
const wchar_t gridSection[] = L"GRID";

template <class Value>
struct Field
{
    const wchar_t* key;
    Value GridSettings::*member;
};

const Field<int> intFields[] = {
    {L"Color", &GridSettings::Color},
    {L"LookType", &GridSettings::LookType},
    {L"WCSBasePoint", &GridSettings::WCSBasePoint},
    {L"delCont", &GridSettings::delCont},
    {L"iCountSigns", &GridSettings::iCountSigns},
    {L"needText", &GridSettings::needText},
    {L"bXTopScribe", &GridSettings::bXTopScribe},
    {L"bXBottomScribe", &GridSettings::bXBottomScribe},
    {L"bXLeftScribe", &GridSettings::bXLeftScribe},
    {L"bXRightScribe", &GridSettings::bXRightScribe},
    {L"bYTopScribe", &GridSettings::bYTopScribe},
    {L"bYBottomScribe", &GridSettings::bYBottomScribe},
    {L"bYLeftScribe", &GridSettings::bYLeftScribe},
    {L"bYRightScribe", &GridSettings::bYRightScribe},
};

const Field<double> realFields[] = {
    {L"VertStep", &GridSettings::VertStep},
    {L"HorStep", &GridSettings::HorStep},
    {L"crossSize", &GridSettings::crossSize},
    {L"heightText", &GridSettings::heightText},
};

const Field<CString> textFields[] = {
    {L"textXScribe", &GridSettings::textXScribe},
    {L"textYScribe", &GridSettings::textYScribe},
};

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

template <class Value, size_t count>
void readFields(const IniStore& store, const Field<Value> (&fields)[count], GridSettings& settings)
{
    for (auto field = std::begin(fields); field != std::end(fields); ++field)
    {
        fromText(store.getValue(gridSection, field->key), settings.*field->member);
    }
}

template <class Value, size_t count>
void writeFields(const GridSettings& settings, const Field<Value> (&fields)[count], IniStore& store)
{
    for (auto field = std::begin(fields); field != std::end(fields); ++field)
    {
        store.setValue(gridSection, field->key, toText(settings.*field->member));
    }
}
}  // namespace

CString settingsFilePath(HMODULE module)
{
    const DWORD capacity = 521;
    wchar_t buffer[capacity] = L"";
    if (GetModuleFileNameW(module, buffer, capacity) == capacity)
    {
        return L"";  // cut: what is left may name another folder
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
    // A missing key reads as "0", not as the default: files cut down by hand rely on it.
    readFields(m_store, intFields, settings);
    readFields(m_store, realFields, settings);
    readFields(m_store, textFields, settings);
}

bool SettingsFile::save(const GridSettings& settings)
{
    m_store.removeSection(gridSection);
    writeFields(settings, intFields, m_store);
    writeFields(settings, realFields, m_store);
    writeFields(settings, textFields, m_store);
    return m_store.writeFile(m_path);
}
