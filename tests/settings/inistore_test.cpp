#include "settings/inistore.h"

#include <climits>

#include <gtest/gtest.h>

#include "host/windows/format.h"
#include "tests/app/original.h"
#include "tests/settings/temporaryfile.h"
#include "tests/support/fulldisk.h"

namespace
{
wchar_t refused = 0;         // a character that no code page holds; 0 if there is none
int linesThatFit = INT_MAX;  // on the disk
}  // namespace

// In the place of the host's function: its fwprintf writes "?" of itself, others do not.
extern "C" int crtWctomb(char* bytes, wchar_t unit)
{
    return refused != 0 && unit == refused
               ? -1
               : original<int(char*, wchar_t)>("crtWctomb")(bytes, unit);
}

extern "C" int crtFwprintf(FILE* file, const wchar_t* format, ...)
{
    if (linesThatFit != INT_MAX && linesThatFit-- <= 0)
    {
        return -1;
    }
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring text = host::formatWide(format, arguments);
    va_end(arguments);
    return original<int(FILE*, const wchar_t*, ...)>("crtFwprintf")(file, L"%s", text.c_str());
}

namespace
{
using namespace std::string_literals;

std::wstring wide(const CString& text)
{
    return static_cast<const wchar_t*>(text);
}

// Returns the contents of the store as it would write them.
std::string written(const IniStore& store)
{
    const TemporaryFile file;
    EXPECT_TRUE(store.writeFile(file.path()));
    return file.read();
}

// Returns the keys of a section as "name=value;", or null for an unknown section.
std::wstring keysOf(const IniStore& store, const wchar_t* name)
{
    const IniSection* section = store.findSection(name);
    if (section == nullptr)
    {
        return L"none";
    }
    std::wstring text;
    for (const auto& [key, value] : *section)
    {
        text += wide(key) + L"=" + wide(value) + L";";
    }
    return text;
}

TEST(IniStore, readsLinesAsSectionsAndKeys)
{
    struct Row
    {
        std::string file;
        const wchar_t* section;
        std::wstring keys;
    };
    const Row rows[] = {
        {"[A]\nk=v\n", L"A", L"k=v;"},
        {"[A]\r\nk=v\r\n", L"A", L"k=v;"},
        {"[A]\n\rk=v\r\r\n", L"A", L"k=v;"},  // a stray CR is stripped like a blank
        {"[A]\nk=v\nlast=1", L"A", L"k=v;"},  // no line feed: not a line
        {"[A]\nk=v\n[B]", L"B", L"none"},
        {"[A]\n\n \t\nk=v\n", L"A", L"k=v;"},
        {" \t[ A\t]\t \r\n \tk \t=v \t\n", L"A", L"k=v;"},
        {"[A]\nk= v\n", L"A", L"k= v;"},  // blanks before a value stay
        {"[A]\nk=\n", L"A", L"k=;"},
        {"[A]\nk=a=b\n", L"A", L"k=a=b;"},
        {"[A]\nk=1\nK=2\n", L"A", L"k=2;"},                        // last value, first spelling
        {"[A]\nb=1\nC=2\na=3\n_=4\n", L"A", L"_=4;a=3;b=1;C=2;"},  // "_" before letters
        {"[A]\ntwo words\n", L"A", L"two words=two words;"},
        {"[A]\n#note\n", L"A", L"#note=#note;"},
        {"[A]\n#k=v\n", L"A", L"#k=v;"},
        {"[A]\n#=v\n", L"A", L""},
        {"[A]\n=v\n", L"A", L""},
        {"[A]\n=\n", L"A", L""},
        {"k=v\n#note\n[A]\n", L"A", L""},  // before any section
        {"[A]\n[B]\nk=v\n", L"A", L""},
        {"[A]\na=1\n[B]\nb=2\n[a]\nc=3\n", L"A", L"a=1;c=3;"},  // other case: same section
        {"[A]b]\nk=v\n", L"A]b", L"k=v;"},
        {"[A=b]\nk=v\n", L"A=b", L"k=v;"},
        {"[]\nk=v\n", L"", L"k=v;"},
        {"[A]\n[B]b\n", L"A", L"[B]b=[B]b;"},  // "]" is not its end
        {"[A]\n[B]=1\n", L"A", L"[B]=1;"},
        {"[A]\n[\n", L"A", L"[=[;"},
        {"[A]\n]\n", L"A", L"]=];"},
        {"\xEF\xBB\xBF[A]\nk=v\n", L"A", L"k=v;"},
        {"[A]\nk=\xD0\x96\n", L"A", L"k=\u0416;"},  // UTF-8 without a mark
        {"\xFF\xFE[\0A\0]\0\n\0k\0\n\0"s, L"A", L"k=k;"},
        {"", L"A", L"none"},
    };
    for (const Row& row : rows)
    {
        const TemporaryFile file;
        file.write(row.file);
        IniStore store;
        EXPECT_TRUE(store.readFile(file.path())) << row.file;
        EXPECT_EQ(keysOf(store, row.section), row.keys) << row.file;
    }
}

TEST(IniStore, fileThatIsNotThereLeavesTheStoreEmpty)
{
    const TemporaryFile file;
    IniStore store;
    store.setValue(L"A", L"k", L"v");
    EXPECT_FALSE(store.readFile(file.path()));
    EXPECT_EQ(written(store), "");
}

TEST(IniStore, readingReplacesWhatTheStoreHeld)
{
    const TemporaryFile file;
    file.write("[B]\n");
    IniStore store;
    store.setValue(L"A", L"k", L"v");
    EXPECT_TRUE(store.readFile(file.path()));
    EXPECT_EQ(written(store), "[B]\r\n");
}

TEST(IniStore, writesSectionsAndKeysInCaseIgnoringOrder)
{
    IniStore store;
    store.setValue(L"second", L"b", L"1");
    store.setValue(L"second", L"C", L" 2 ");
    store.setValue(L"SECOND", L"A", L"");
    store.getOrCreateSection(L"First");
    EXPECT_EQ(written(store), "[First]\r\n[second]\r\nA=\r\nb=1\r\nC= 2 \r\n");
}

TEST(IniStore, unknownKeysAndRemarksAreWrittenBack)
{
    const TemporaryFile file;
    file.write("[Other]\nk=v\n[GRID]\n#remark\nmine=1\n[grid]\nColor=3\n");
    IniStore store;
    store.readFile(file.path());
    EXPECT_EQ(written(store),
              "[GRID]\r\n#remark=#remark\r\nColor=3\r\nmine=1\r\n[Other]\r\nk=v\r\n");
}

TEST(IniStore, characterThatTheCodePageLacksIsAQuestionMarkAndTheNextKeyIsWhole)
{
    struct Row
    {
        const wchar_t* value;
        std::string bytes;
    };
    const Row rows[] = {
        {L"\u0416=", "?="},      {L"a\u20ACb", "a?b"},
        {L"\u00E9", "\xE9"},      // the "C" locale holds the first 256
        {L"\xD83D\xDE00", "??"},  // a pair is two units
        {L"%s %d", "%s %d"},
    };
    for (const Row& row : rows)
    {
        IniStore store;
        store.setValue(L"A", L"j", row.value);
        store.setValue(L"A", L"k", L"v");
        EXPECT_EQ(written(store), "[A]\r\nj=" + row.bytes + "\r\nk=v\r\n");
    }
}

TEST(IniStore, doesNotLeaveToTheRuntimeWhatTheCodePageLacks)
{
    IniStore store;
    store.setValue(L"A", L"ZaZ", L"ZbZ");
    refused = L'Z';
    EXPECT_EQ(written(store), "[A]\r\n?a?=?b?\r\n");
    refused = 0;
}

TEST(IniStore, writingIntoAMissingFolderFails)
{
    const TemporaryFile file;
    EXPECT_FALSE(IniStore().writeFile(file.pathInMissingFolder()));
}

TEST(IniStore, writingToAFullDiskFails)
{
    IniStore store;
    store.setValue(L"A", L"k", L"v");
    store.setValue(L"B", L"k", L"v");
    const TemporaryFile file;
    {
        const tests::FullDisk disk;
        EXPECT_FALSE(store.writeFile(file.path())) << "that shows when the file is closed";
    }
    for (const int lines : {0, 1, 2, 3})
    {
        linesThatFit = lines;
        EXPECT_FALSE(store.writeFile(file.path())) << lines;
    }
    linesThatFit = 4;
    EXPECT_TRUE(store.writeFile(file.path()));
    linesThatFit = INT_MAX;
}

TEST(IniStore, namesAreStrippedAndFoundInAnyCase)
{
    IniStore store;
    store.setValue(L" \tGrid ", L"\tColor ", L" 7");
    EXPECT_EQ(wide(store.getValue(L"GRID\t", L" COLOR")), L" 7");
    EXPECT_EQ(written(store), "[Grid]\r\nColor= 7\r\n");

    const IniSection* section = store.findSection(L" grid ");
    ASSERT_NE(section, nullptr);
    ASSERT_NE(findKey(*section, L"color\t"), nullptr);
    EXPECT_EQ(findKey(*section, L"col or"), nullptr);
}

TEST(IniStore, missingSectionOrKeyReadsAsZero)
{
    IniStore store;
    store.setValue(L"A", L"k", L"");
    EXPECT_EQ(wide(store.getValue(L"A", L"none")), L"0");
    EXPECT_EQ(wide(store.getValue(L"B", L"k")), L"0");
    EXPECT_EQ(wide(store.getValue(L"A", L"k")), L"");
    EXPECT_EQ(store.findSection(L"B"), nullptr);
}

TEST(IniStore, removedSectionGoesWithItsKeys)
{
    IniStore store;
    store.setValue(L"A", L"k", L"v");
    store.setValue(L"B", L"k", L"v");
    store.removeSection(L"\ta ");
    store.removeSection(L"none");
    EXPECT_EQ(written(store), "[B]\r\nk=v\r\n");
    store.clear();
    EXPECT_EQ(written(store), "");
}

TEST(IniStore, keyOnceMadeIsFoundAgain)
{
    IniStore store;
    IniSection& section = store.getOrCreateSection(L"A");
    getOrCreateKey(section, L" k") = L"1";
    EXPECT_EQ(wide(getOrCreateKey(section, L"K ")), L"1");
    EXPECT_EQ(&store.getOrCreateSection(L"a"), &section);
}
}  // namespace
