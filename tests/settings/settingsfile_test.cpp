#include "settings/settingsfile.h"

#include <gtest/gtest.h>

#include <limits>

#include "app/entry.h"
#include "output/numbers.h"
#include "tests/settings/modulepath.h"
#include "tests/settings/temporaryfile.h"

namespace
{
std::wstring wide(const CString& text)
{
    return static_cast<const wchar_t*>(text);
}

GridSettings loaded(const std::string& fileText)
{
    const TemporaryFile file;
    file.write(fileText);
    GridSettings settings;
    SettingsFile(file.path()).load(settings);
    return settings;
}

std::string saved(const GridSettings& settings, const std::string& before = "")
{
    const TemporaryFile file;
    file.write(before);
    SettingsFile settingsFile(file.path());
    GridSettings ignored;
    settingsFile.load(ignored);
    EXPECT_TRUE(settingsFile.save(settings));
    return file.read();
}

const std::string defaultFile =
    "[GRID]\r\n"
    "bXBottomScribe=1\r\nbXLeftScribe=1\r\nbXRightScribe=1\r\nbXTopScribe=1\r\n"
    "bYBottomScribe=1\r\nbYLeftScribe=1\r\nbYRightScribe=1\r\nbYTopScribe=1\r\n"
    "Color=12\r\ncrossSize=50.0000\r\ndelCont=0\r\nheightText=1.0000\r\nHorStep=100.0000\r\n"
    "iCountSigns=0\r\nLookType=0\r\nneedText=0\r\ntextXScribe=\r\ntextYScribe=\r\n"
    "VertStep=100.0000\r\nWCSBasePoint=0\r\n";

void expectDefaults(const GridSettings& settings)
{
    EXPECT_EQ(saved(settings), defaultFile);
    EXPECT_EQ(wide(settings.textStyleName), L"Standard");
    EXPECT_EQ(settings.basePoint.x, 0.0);
    EXPECT_EQ(settings.basePoint.y, 0.0);
    EXPECT_EQ(settings.basePoint.z, 0.0);
}

struct IntKey
{
    const char* key;
    int GridSettings::*field;
};

const IntKey intKeys[] = {
    {"Color", &GridSettings::Color},
    {"LookType", &GridSettings::LookType},
    {"WCSBasePoint", &GridSettings::WCSBasePoint},
    {"delCont", &GridSettings::delCont},
    {"iCountSigns", &GridSettings::iCountSigns},
    {"needText", &GridSettings::needText},
    {"bXTopScribe", &GridSettings::bXTopScribe},
    {"bXBottomScribe", &GridSettings::bXBottomScribe},
    {"bXLeftScribe", &GridSettings::bXLeftScribe},
    {"bXRightScribe", &GridSettings::bXRightScribe},
    {"bYTopScribe", &GridSettings::bYTopScribe},
    {"bYBottomScribe", &GridSettings::bYBottomScribe},
    {"bYLeftScribe", &GridSettings::bYLeftScribe},
    {"bYRightScribe", &GridSettings::bYRightScribe},
};

struct RealKey
{
    const char* key;
    double GridSettings::*field;
};

const RealKey realKeys[] = {
    {"VertStep", &GridSettings::VertStep},
    {"HorStep", &GridSettings::HorStep},
    {"crossSize", &GridSettings::crossSize},
    {"heightText", &GridSettings::heightText},
};

TEST(SettingsFile, defaultsAreWrittenAsTwentyKeysInCaseIgnoringOrder)
{
    const TemporaryFile file;
    EXPECT_TRUE(SettingsFile(file.path()).save(GridSettings()));
    EXPECT_EQ(file.read(), defaultFile);
}

TEST(SettingsFile, withoutFileOrSectionTheDefaultsStand)
{
    GridSettings settings;
    SettingsFile(TemporaryFile().path()).load(settings);
    expectDefaults(settings);
    expectDefaults(loaded("[OTHER]\nColor=3\n"));
    expectDefaults(loaded("Color=3\n[GRID]"));  // a header without its line feed is not a header
}

TEST(SettingsFile, missingKeyReadsAsZeroNotAsTheDefault)
{
    const GridSettings settings = loaded("[GRID]\n");
    for (const IntKey& key : intKeys)
    {
        EXPECT_EQ(settings.*key.field, 0) << key.key;
    }
    for (const RealKey& key : realKeys)
    {
        EXPECT_EQ(settings.*key.field, 0.0) << key.key;
    }
    EXPECT_EQ(wide(settings.textXScribe), L"0");
    EXPECT_EQ(wide(settings.textYScribe), L"0");
}

TEST(SettingsFile, everyKeyReadsIntoItsOwnField)
{
    for (const IntKey& key : intKeys)
    {
        GridSettings settings = loaded("[grid]\n" + std::string(key.key) + "=7\n");
        EXPECT_EQ(settings.*key.field, 7) << key.key;
        settings.*key.field = 12345;
        EXPECT_NE(saved(settings).find("\n" + std::string(key.key) + "=12345\r\n"),
                  std::string::npos);
    }
    for (const RealKey& key : realKeys)
    {
        GridSettings settings = loaded("[grid]\n" + std::string(key.key) + "=7.5\n");
        EXPECT_EQ(settings.*key.field, 7.5) << key.key;
        settings.*key.field = 0.25;
        EXPECT_NE(saved(settings).find("\n" + std::string(key.key) + "=0.2500\r\n"),
                  std::string::npos);
    }
    const GridSettings settings = loaded("[GRID]\nTEXTXSCRIBE= x=\ntextyscribe=y\n");
    EXPECT_EQ(wide(settings.textXScribe), L" x=");
    EXPECT_EQ(wide(settings.textYScribe), L"y");
    const std::string text = saved(settings);
    EXPECT_NE(text.find("\ntextXScribe= x=\r\ntextYScribe=y\r\n"), std::string::npos) << text;
}

TEST(SettingsFile, realsAreReadStrictly)
{
    const double notSet = std::numeric_limits<double>::max();
    struct Row
    {
        const char* text;
        double value;
    };
    const Row rows[] = {
        {"25", 25.0},    {"2,5", 2.5},    {"-2.5", -2.5}, {"2.5e3", notSet},  // no exponents
        {" 25", notSet},                                                      // a blank before it
        {"25 ", 25.0},  // one behind it goes with the line's end
        {"", notSet},    {"abc", notSet}, {"1-2", 1.0},
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(loaded("[GRID]\nVertStep=" + std::string(row.text) + "\n").VertStep, row.value)
            << row.text;
    }
}

TEST(SettingsFile, wholeNumbersAreReadLoosely)
{
    struct Row
    {
        const char* text;
        int value;
    };
    const Row rows[] = {
        {"-3", -3},
        {"3.9", 3},
        {"3x", 3},
        {"x3", 0},
        {"", 0},
        {" 3", 0},
        {"2147483647", 2147483647},
        {"65548", 65548},  // values are not range-checked
    };
    for (const Row& row : rows)
    {
        EXPECT_EQ(loaded("[GRID]\nColor=" + std::string(row.text) + "\n").Color, row.value)
            << row.text;
    }
}

TEST(SettingsFile, whatIsNotSetIsWrittenAsNothing)
{
    GridSettings settings;
    settings.Color = std::numeric_limits<int>::max();
    settings.HorStep = std::numeric_limits<double>::max();
    settings.VertStep = -std::numeric_limits<double>::max();
    const std::string text = saved(settings);
    EXPECT_NE(text.find("\nColor=\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nHorStep=\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nVertStep=\r\n"), std::string::npos) << text;
}

TEST(SettingsFile, otherSectionsOutliveASaveAndOnlyOurKeysStayInOurs)
{
    EXPECT_EQ(saved(GridSettings(), "[zoo]\nb=1\n#A\n[grid]\nmine=1\n#note\n[Also]\nk= v\n"),
              "[Also]\r\nk= v\r\n" + defaultFile + "[zoo]\r\n#A=#A\r\nb=1\r\n");
}

TEST(SettingsFile, onlyAsciiPrefixesSurviveASave)
{
    GridSettings settings;
    settings.textXScribe = L"X=";
    settings.textYScribe = L"\u0423=";
    settings = loaded(saved(settings));
    EXPECT_EQ(wide(settings.textXScribe), L"X=");
    EXPECT_EQ(wide(settings.textYScribe), L"?=");
    EXPECT_EQ(settings.VertStep, 100.0);
}

TEST(SettingsFile, saveThatCannotOpenTheFileFails)
{
    EXPECT_FALSE(SettingsFile(TemporaryFile().pathInMissingFolder()).save(GridSettings()));
}

TEST(SettingsFile, liesInTheFolderOfTheModule)
{
    struct Row
    {
        std::wstring module;
        std::wstring file;
    };
    const std::wstring deep(506, L'x');     // so that the module's path has 520 characters
    const std::wstring tooDeep(507, L'x');  // one more: it would be cut
    const std::wstring cutFolder(517, L'x');
    const Row rows[] = {
        {L"C:\\Plug-ins\\netrax.arx", L"C:\\Plug-ins\\properties.ini"},
        {L"\\netrax.arx", L"\\properties.ini"},
        {L"C:\\\u0421\u0435\u0442\u043a\u0430\\a.b\\x",
         L"C:\\\u0421\u0435\u0442\u043a\u0430\\a.b\\properties.ini"},
        {L"netrax.arx", L"properties.ini"},  // no folder: the working one
        {L"", L"properties.ini"},
        {L"C:\\" + deep + L"\\netrax.arx", L"C:\\" + deep + L"\\properties.ini"},
        {L"C:\\" + tooDeep + L"\\netrax.arx", L""},
        {L"C:\\" + cutFolder + L"\\netrax.arx", L""},
    };
    for (const Row& row : rows)
    {
        const ModulePath path(row.module);
        EXPECT_EQ(wide(settingsFilePath(nullptr)), row.file);
    }
}

TEST(SettingsFile, withoutAPathIsNeitherReadNorWritten)
{
    GridSettings settings;
    SettingsFile file(L"");
    file.load(settings);
    expectDefaults(settings);
    EXPECT_FALSE(file.save(settings));
}

TEST(SettingsFile, handleOfTheModuleLeadsToItsFolder)
{
    wchar_t module[1024] = L"";
    ASSERT_GT(GetModuleFileNameW(attachedModule(), module, 1024), 0u);
    const std::wstring path = module;
    EXPECT_EQ(wide(settingsFilePath(attachedModule())),
              path.substr(0, path.rfind(L'\\')) + L"\\properties.ini");
}
}  // namespace
