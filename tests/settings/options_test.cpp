// The table of options drives the record, the file and the dialog.
#include "settings/options.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "settings/settingsfile.h"
#include "tests/settings/dialogrun.h"
#include "tests/settings/temporaryfile.h"

namespace
{
// A value that is neither the option's default nor, for a box or a button, the state it begins in.
int other(const IntOption& option, int value)
{
    return option.kind == listControl ? value + 1 : value == 1 ? 0 : 1;
}
double other(const RealOption&, double value)
{
    return value + 1.5;
}
CString other(const TextOption&, const CString& value)
{
    return value + L"N=";
}

template <class Row>
auto different(const Row& option)
{
    GridSettings settings;
    settings.needText = 1;  // what belongs to the labels can be reached
    settings.*option.member = other(option, settings.*option.member);
    return settings;
}

std::string narrow(const wchar_t* key)
{
    return std::string(key, key + std::wcslen(key));
}

TEST(Options, haveTheirDefaultsInANewRecord)
{
    forEachOption([](const auto& option)
                  { EXPECT_TRUE(GridSettings().*option.member == option.standard) << option.key; });
}

TEST(Options, haveAKeyAndAControlOfTheirOwn)
{
    std::set<std::wstring> keys;
    std::set<int> controls;
    forEachOption(
        [&](const auto& option)
        {
            EXPECT_TRUE(keys.insert(option.key).second) << option.key;
            EXPECT_TRUE(controls.insert(option.control).second) << option.key;
        });
}

TEST(Options, comeBackFromTheFileAsTheyWereSaved)
{
    forEachOption(
        [](const auto& option)
        {
            const GridSettings saved = different(option);
            const TemporaryFile file;
            EXPECT_TRUE(SettingsFile(file.path()).save(saved));
            EXPECT_NE(file.read().find("\n" + narrow(option.key) + "="), std::string::npos);
            GridSettings loaded;
            SettingsFile(file.path()).load(loaded);
            EXPECT_TRUE(loaded.*option.member == saved.*option.member) << option.key;
        });
}

TEST(Options, areShownInTheirControlsAndComeBackOnOk)
{
    forEachOption(
        [](const auto& option)
        {
            DialogRun asUsual;
            asUsual.settings.needText = 1;
            DialogRun changed;
            changed.settings = different(option);
            const GridSettings given = changed.settings;
            const std::string before = shown(asUsual.with({"show", "click 1"}), option.control);
            const std::string after = shown(changed.with({"show", "click 1"}), option.control);
            EXPECT_NE(before, "") << option.key;
            EXPECT_NE(before, after) << option.key;
            EXPECT_TRUE(changed.settings.*option.member == given.*option.member) << option.key;
        });
}

TEST(Options, ofTheLabelsAreEnabledOnlyWhileLabelsAreWanted)
{
    DialogRun run;
    const std::string said = run.with({"show", "click 1"});
    forEachOption(
        [&](const auto& option)
        {
            const bool isOffWithoutLabels =
                shown(said, option.control).find("disabled") != std::string::npos;
            const bool isOffWithoutCrosses = option.key == std::wstring(L"crossSize");
            EXPECT_EQ(isOffWithoutLabels, option.isOfLabels || isOffWithoutCrosses) << option.key;
        });
}
}  // namespace
