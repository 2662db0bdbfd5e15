// The settings dialog: values picked in the drawing while the dialog is hidden.
#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "tests/settings/dialogrun.h"

namespace
{
using Lines = std::vector<std::string>;

const std::string ok = "[dialog closed] ok\n";

// Everything from the opening line to the closing one, both left out.
std::string between(const std::string& said)
{
    const std::size_t first = said.find('\n') + 1;
    return said.substr(first, said.rfind("[dialog closed]") - first);
}

struct Pick
{
    const char* button;
    int edit;
    const char* prompt;  // with the present length
    const char* promptRu;
    const char* zero;
    const char* zeroRu;
};

const Pick picks[] = {
    {"click 110", 107, "Vertical step <100.0000>: ", "Вертикальный шаг <100.0000>: ",
     "Vertical step cant be equal to zero", "Вертикальный шаг не может быть равен нулю"},
    {"click 111", 109, "Horizontal step <100.0000>: ", "Горизонтальный шаг <100.0000>: ",
     "Horizontal step cant be equal to zero", "Горизонтальный шаг не может быть равен нулю"},
    {"click 118", 117, "Size of a cross <50.0000>: ", "Размер креста <50.0000>: ",
     "Size of a cross cant be equal to zero", "Размер креста не может быть равен нулю"},
    {"click 134", 132, "Text height <1.0000>: ", "Высота текста <1.0000>: ",
     "Text height cant be equal to zero", "Высота текста не может быть равена нулю"},
};

DialogRun withEverythingEnabled(const wchar_t* locale, double size)
{
    DialogRun run{.gridWidth = size, .gridHeight = size, .locale = locale};
    run.settings.LookType = 1;
    run.settings.needText = 1;
    return run;
}

std::string shownText(const std::string& said, int edit)
{
    return shown(said, edit).substr(std::string("edit enabled - ").size());
}

TEST(SettingsPicks, promptWithTheLengthAsItStandsAndShowWhatWasGiven)
{
    for (const Pick& row : picks)
    {
        for (const bool russian : {false, true})
        {
            DialogRun run = withEverythingEnabled(russian ? L"ru-RU" : L"en-US", 1000);
            const std::string said = run.with({row.button, "25.25", "show", "click 1"});
            const std::string prompt = russian ? row.promptRu : row.prompt;
            EXPECT_TRUE(between(said).starts_with("\n" + prompt + "25.25\n")) << said;
            EXPECT_EQ(shownText(said, row.edit), "\"25.2500\"");
        }
    }
}

TEST(SettingsPicks, refuseZeroAndKeepTheEdit)
{
    for (const Pick& row : picks)
    {
        for (const bool russian : {false, true})
        {
            DialogRun run = withEverythingEnabled(russian ? L"ru-RU" : L"en-US", 1000);
            const std::string set = "set " + std::to_string(row.edit) + " 33";
            const std::string said = run.with({set, row.button, "0.00000000001", "show", "^C"});
            const std::string alert = russian ? row.zeroRu : row.zero;
            EXPECT_NE(said.find("[alert] " + alert + "\n"), std::string::npos) << said;
            EXPECT_EQ(shownText(said, row.edit), "\"33\"");
        }
    }
}

TEST(SettingsPicks, takeALengthOfTheToleranceItself)
{
    DialogRun run = withEverythingEnabled(L"en-US", 1000);
    const std::string said = run.with({"click 118", "0.0000000001", "show", "^C"});
    EXPECT_EQ(said.find("[alert]"), std::string::npos) << said;
    EXPECT_EQ(shownText(said, 117), "\"0.0000\"");
}

struct Outcome
{
    const char* lines;  // after "click 110"
    const char* said;   // what is printed after the prompt
    const char* shown;  // in the edit afterwards
};

// The outcomes of picking the vertical step in a grid 1000 wide and 1000 high.
const Outcome outcomes[] = {
    {"20", "20\n", "\"20.0000\""},
    {"0,0 | 3,4", "0,0\n", "\"5.0000\""},  // two points; asks, see below
    {"1000", "1000\n", "\"1000.0000\""},
    {"1000.5", "1000.5\n[alert] Vertical step cant be bigger than height of the grid\n",
     "\"100.0000\""},
    {"-30", "-30\n", "\"-30.0000\""},   // refused on OK only
    {"<Enter>", "\n", "\"100.0000\""},  // Enter keeps the step
    {"^C", "^C\n", "\"100.0000\""},
    {"19 | yes",
     "19\n[message box] Attention: Large number of vertical lines in grid. Proceed? (Yes/No) -> "
     "yes\n",
     "\"19.0000\""},
    {"19 | no",
     "19\n[message box] Attention: Large number of vertical lines in grid. Proceed? (Yes/No) -> "
     "no\n",
     "\"100.0000\""},
    {"-19 | no",
     "-19\n[message box] Attention: Large number of vertical lines in grid. Proceed? (Yes/No) -> "
     "no\n",
     "\"100.0000\""},
};

TEST(SettingsPicks, checkAStepAgainstTheGrid)
{
    for (const Outcome& row : outcomes)
    {
        DialogRun run = withEverythingEnabled(L"en-US", 1000);
        Lines lines = {"click 110"};
        const Lines answers = typed(row.lines);
        lines.insert(lines.end(), answers.begin(), answers.end());
        const bool asked = answers[0] == "0,0";
        if (asked)
        {
            lines.push_back("yes");
        }
        lines.insert(lines.end(), {"show", "^C"});
        const std::string said = run.with(lines);
        EXPECT_TRUE(
            between(said).starts_with("\nVertical step <100.0000>: " + std::string(row.said)))
            << said;
        EXPECT_EQ(shownText(said, 107), row.shown) << said;
    }
}

TEST(SettingsPicks, checkTheHorizontalStepAgainstTheWidth)
{
    DialogRun run{.gridWidth = 500, .gridHeight = 1000};
    const std::string said = run.with({"click 111", "600", "click 111", "9", "no", "show", "^C"});
    EXPECT_NE(said.find("[alert] Horizontal step cant be bigger than height of the grid\n"),
              std::string::npos);
    EXPECT_NE(said.find("Large number of horizontal lines in grid. Proceed? (Yes/No) -> no"),
              std::string::npos);
    EXPECT_EQ(shownText(said, 109), "\"100.0000\"");
}

TEST(SettingsPicks, checkAStepAgainstAGridSmallerThanAUnitToo)
{
    DialogRun run{.gridWidth = 0.5, .gridHeight = 0.5};
    const std::string said = run.with({"click 110", "0.6", "^C"});
    EXPECT_NE(said.find("[alert] Vertical step cant be bigger"), std::string::npos) << said;
}

TEST(SettingsPicks, sayInRussianWhatIsWrongWithAStep)
{
    DialogRun run{.gridWidth = 500, .gridHeight = 500, .locale = L"ru-RU"};
    const std::string said =
        run.with({"click 110", "600", "click 111", "600", "click 110", "9", "no", "^C"});
    EXPECT_NE(said.find("[alert] Вертикальный шаг не может быть больше высоты сетки\n"),
              std::string::npos);
    EXPECT_NE(said.find("[alert] Горизонтальный шаг не может быть больше высоты сетки\n"),
              std::string::npos);
    EXPECT_NE(said.find("Внимание: Большое количество вертикальных линий в сетке. Продолжить?"),
              std::string::npos);
}

TEST(SettingsPicks, checkNoStepWhileTheGridIsNotKnownOrHasNoSize)
{
    for (const char* typed : {"0", "1e9", "0.001"})
    {
        for (const double side : {-1.0, 0.0})
        {
            DialogRun run{.gridWidth = side, .gridHeight = side};
            const std::string said = run.with({"click 110", typed, "^C"});
            EXPECT_EQ(between(said), "\nVertical step <100.0000>: " + std::string(typed) + "\n");
        }
    }
}

TEST(SettingsPicks, giveAStepWhileTheGridIsNotKnown)
{
    DialogRun run{.gridWidth = -1, .gridHeight = -1};
    const std::string said = run.with({"click 110", "25.25", "show", "^C"});
    EXPECT_EQ(shownText(said, 107), "\"25.2500\"");
}

TEST(SettingsPicks, answeredYesAreNotAskedAboutAgainOnOk)
{
    DialogRun run{.gridWidth = 1000, .gridHeight = 1000};
    const std::string said =
        run.with({"click 110", "19", "yes", "click 111", "19", "yes", "click 1"});
    EXPECT_TRUE(said.ends_with("Proceed? (Yes/No) -> yes\n" + ok)) << said;
    EXPECT_EQ(run.settings.VertStep, 19);
    EXPECT_EQ(run.settings.HorStep, 19);
}

TEST(SettingsPicks, answeredNoAreAskedAboutOnOk)
{
    DialogRun run{.gridWidth = 1000, .gridHeight = 1000};
    const std::string said = run.with({"click 110", "19", "no", "set 107 19", "click 1", "yes"});
    EXPECT_TRUE(said.ends_with("(Yes/No) -> yes\n" + ok)) << said;
}

// A Yes that was given stays one when a later pick is declined.
TEST(SettingsPicks, declinedLaterTakeNoYesBack)
{
    DialogRun run{.gridWidth = 1000, .gridHeight = 1000};
    const std::string said =
        run.with({"click 110", "19", "yes", "click 110", "10", "no", "click 1"});
    EXPECT_TRUE(said.ends_with("(Yes/No) -> no\n" + ok)) << said;
    EXPECT_EQ(run.settings.VertStep, 19);
}

TEST(SettingsPicks, leaveTheEditAsItIsWhenTheyAreCancelled)
{
    for (const Pick& row : picks)
    {
        DialogRun run = withEverythingEnabled(L"en-US", 1000);
        const std::string set = "set " + std::to_string(row.edit) + " 33";
        EXPECT_EQ(shownText(run.with({set, row.button, "^C", "show", "^C"}), row.edit), "\"33\"");
    }
}

TEST(SettingsPicks, beginWithWhatIsTyped)
{
    DialogRun run;
    const std::string said = run.with({"set 107 2,5", "click 110", "", "^C"});
    EXPECT_EQ(between(said), "\nVertical step <2.5000>: \n");
}

TEST(SettingsPicks, putTheStepBackIntoAnEditThatHoldsNoNumber)
{
    DialogRun run;
    run.settings.VertStep = 12.5;
    const std::string said = run.with({"set 107 ten", "click 110", "^C", "show", "^C"});
    EXPECT_TRUE(between(said).starts_with("\nVertical step <12.5000>: ^C\n")) << said;
    EXPECT_EQ(shownText(said, 107), "\"12.5000\"");
}

TEST(SettingsPicks, copeWithAStepThatIsNotSet)
{
    DialogRun run;
    run.settings.VertStep = std::numeric_limits<double>::max();
    const std::string said = run.with({"click 110", "", "show", "^C"});
    EXPECT_EQ(shownText(said, 107), "\"\"");
    EXPECT_NE(said.find("<17976931348623157"), std::string::npos);
}

const AcGeMatrix3d& turned()  // x to the world's y, origin at 1000, 2000
{
    static AcGeMatrix3d ucs;
    ucs.setCoordSystem(AcGePoint3d(1000, 2000, 0), AcGeVector3d(0, 1, 0), AcGeVector3d(-1, 0, 0),
                       AcGeVector3d::kZAxis);
    return ucs;
}

struct Base
{
    const char* why;
    int mode;  // WCSBasePoint to begin with
    const char* lines;
    const char* label;  // as shown before OK
    AcGePoint3d stored;
};

const Base bases[] = {
    {"untouched in the world", 0, "", "(10.0000, 20.0000)", {10, 20, 30}},
    {"untouched in the view", 1, "", "(-1980.0000, 990.0000)", {10, 20, 30}},
    {"changed to the view", 0, "click 121", "(-1980.0000, 990.0000)", {10, 20, 30}},
    {"changed to the world", 1, "click 120", "(10.0000, 20.0000)", {10, 20, 30}},
    {"there and back",
     1,
     "click 120 | click 121 | click 121",
     "(-1980.0000, 990.0000)",
     {10, 20, 30}},
    {"picked in the view", 1, "click 124 | 5,7", "(5.0000, 7.0000)", {993, 2005, 0}},
    {"picked in the world",
     0,
     "click 124 | 5,7",
     "(5.0000, 7.0000)",
     {5, 7, 0}},  // the picked point is stored unchanged
    {"picked in the view, then world",
     1,
     "click 124 | 5,7 | click 120",
     "(993.0000, 2005.0000)",
     {993, 2005, 0}},
    {"picked in the world, then view",
     0,
     "click 124 | 5,7 | click 121",
     "(-1993.0000, 995.0000)",
     {5, 7, 0}},
    {"pick cancelled", 1, "click 124 | ^C", "(-1980.0000, 990.0000)", {10, 20, 30}},
    {"pick left empty", 1, "click 124 | <Enter>", "(-1980.0000, 990.0000)", {10, 20, 30}},
};

TEST(SettingsBasePoint, isShownInTheSystemOfTheModeAndStoredInTheWorlds)
{
    for (const Base& row : bases)
    {
        DialogRun run{.ucs = turned()};
        run.settings.basePoint.set(10, 20, 30);
        run.settings.WCSBasePoint = row.mode;
        Lines lines = typed(row.lines);
        lines.insert(lines.end(), {"show", "click 1"});
        const std::string said = run.with(lines);
        EXPECT_EQ(shown(said, 125), "label enabled - \"" + std::string(row.label) + "\"")
            << row.why;
        EXPECT_EQ(run.settings.basePoint.x, row.stored.x) << row.why;
        EXPECT_EQ(run.settings.basePoint.y, row.stored.y) << row.why;
        EXPECT_EQ(run.settings.basePoint.z, row.stored.z) << row.why;
    }
}

TEST(SettingsBasePoint, asksWithItsPromptInBothLanguages)
{
    EXPECT_EQ(between(DialogRun{}.with({"click 124", "1,2", "^C"})), "\nBase point: 1,2\n");
    EXPECT_EQ(between(DialogRun{.locale = L"ru-RU"}.with({"click 124", "1,2", "^C"})),
              "\nБазовая точка: 1,2\n");
}

// To the last bit, in a frame where there and back is not the same number.
TEST(SettingsBasePoint, doesNotMoveHoweverOftenTheDialogIsConfirmed)
{
    support::Session session;
    const double angle = 0.7;
    AcGeMatrix3d ucs;
    ucs.setCoordSystem(AcGePoint3d(2178110.2, 447050.3, 12.7),
                       AcGeVector3d(std::cos(angle), std::sin(angle), 0),
                       AcGeVector3d(-std::sin(angle), std::cos(angle), 0), AcGeVector3d::kZAxis);
    DialogRun run{.ucs = ucs};
    run.settings.basePoint.set(2178123.456789, 447654.321098, 0.1);
    const AcGePoint3d before = run.settings.basePoint;
    for (int i = 0; i < 20; ++i)
    {
        run.settings.WCSBasePoint = i % 2;
        run.with(session,
                 i % 3 == 0 ? Lines{"click 120", "click 121", "click 1"} : Lines{"click 1"});
        EXPECT_EQ(run.settings.basePoint.x, before.x);
        EXPECT_EQ(run.settings.basePoint.y, before.y);
        EXPECT_EQ(run.settings.basePoint.z, before.z);
    }
}
}  // namespace
