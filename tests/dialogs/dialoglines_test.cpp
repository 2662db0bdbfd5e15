// Tests the lines that a script writes to a dialog and the lines that it reads.
#include <gtest/gtest.h>

#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

namespace
{
using Lines = std::vector<std::string>;

// Returns the text printed between opening and closing; `look` sees the dialog after the lines.
std::string said(Panel& panel, Lines lines, const std::function<void()>& look = {})
{
    lines.push_back("click 1");
    panel.mayOk = [&]
    {
        if (look)
        {
            look();
        }
        return true;
    };
    support::Session session;
    const std::string all = session.run([&] { panel.DoModal(); }, lines);
    const std::string opened = "[dialog] Panel\n";
    const std::string closed = "[dialog closed] ok\n";
    EXPECT_TRUE(all.starts_with(opened) && all.ends_with(closed)) << all;
    EXPECT_EQ(session.questions.size(), lines.size()) << all;
    return all.substr(opened.size(), all.size() - opened.size() - closed.size());
}

struct Typed
{
    const char* line;
    const wchar_t* text;
};

const Typed edits[] = {
    {"set 11 5", L"5"},         {"SET 11 5", L"5"},
    {"\t set   11 5 ", L"5 "},  // one blank after the number belongs to the line
    {"set 11  a  b", L" a  b"}, {"set 11 \"1 2\"", L"\"1 2\""},
    {"set 11 шаг", L"шаг"},     {"set 11 set 11 5", L"set 11 5"},
    {"set 11 ", L""},           {"set 11", L""},
};

TEST(DialogLines, anEditTakesTheRestOfTheLineAsItStands)
{
    for (const Typed& row : edits)
    {
        Panel panel;
        panel.onInit = [&] { panel.SetDlgItemText(Panel::step, L"before"); };
        EXPECT_EQ(said(panel, {row.line}, [&] { EXPECT_EQ(panel.text(Panel::step), row.text); }),
                  "");
        EXPECT_EQ(panel.told.front(), "11 768") << row.line;  // EN_CHANGE
    }
}

struct Clicked
{
    Lines lines;
    Lines told;
    bool linesOn;  // the state of three buttons afterwards
    bool crossesOn;
    bool eraseOn;
};

// "Lines" is checked to begin with.
const Clicked clicks[] = {
    {{"click 12"}, {"12 0"}, true, false, false},
    {{"click 22"}, {"22 0"}, false, true, false},
    {{"click 21"}, {"21 0"}, true, false, false},  // all the same
    {{"click 23"}, {"23 0"}, true, false, true},
    {{"click 23", "click 23"}, {"23 0", "23 0"}, true, false, false},
    {{"check 23 on"}, {"23 0"}, true, false, true},
    {{"check 23 off"}, {}, true, false, false},
    {{"check 23 on", "check 23 on"}, {"23 0"}, true, false, true},
    {{"check 23 on", "CHECK 23  OFF "}, {"23 0", "23 0"}, true, false, false},
    {{"check 22 on"}, {"22 0"}, false, true, false},
    {{"check 22 off"}, {}, true, false, false},
    {{"check 21 on"}, {}, true, false, false},  // it is on already
    {{"check 22 on", "check 21 on"}, {"22 0", "21 0"}, true, false, false},
};

TEST(DialogLines, buttonsAreClickedAsByAHand)
{
    for (const Clicked& row : clicks)
    {
        Panel panel;
        const auto look = [&]
        {
            EXPECT_EQ(panel.checked(Panel::lines), row.linesOn) << row.lines[0];
            EXPECT_EQ(panel.checked(Panel::crosses), row.crossesOn) << row.lines[0];
            EXPECT_EQ(panel.checked(Panel::erase), row.eraseOn) << row.lines[0];
        };
        EXPECT_EQ(said(panel, row.lines, look), "");
        panel.told.pop_back();  // OK
        EXPECT_EQ(panel.told, row.told) << row.lines[0];
    }
}

struct Chosen
{
    const char* line;
    int index;
    const char* told;
};

const Chosen choices[] = {
    {"select 30 Notes", 1, "30 1"},
    {"select 30 NOTES", 1, "30 1"},
    {"Select 30  two words ", 2, "30 1"},
    {"select 30 #0", 0, "30 1"},
    {"select 30 # 2", 2, "30 1"},
    {"select 31 cyan", 5, "31 1"},
    {"color 31 3", 4, "31 1"},
    {"color 31 0", 1, "31 1"},
    {"color 31 256", 0, "31 1"},
    {"color 31 255", 0, "31 1"},  // joins the recent ones
};

TEST(DialogLines, anItemIsChosenAndTheDialogIsTold)
{
    for (const Chosen& row : choices)
    {
        Panel panel;
        CComboBox& list = row.told[1] == '0' ? panel.styles : panel.colors;
        EXPECT_EQ(
            said(panel, {row.line}, [&] { EXPECT_EQ(list.GetCurSel(), row.index) << row.line; }),
            "");
        EXPECT_EQ(panel.told.front(), row.told) << row.line;
    }
}

struct Wrong
{
    const char* line;
    const char* complaint;
};

// 50 is hidden.
const Wrong wrongs[] = {
    {"set", "Say which control: set ID"},
    {"click ", "Say which control: click ID"},
    {"set 999 5", "There is no control 999 in this dialog."},
    {"set -1 5", "There is no control -1 in this dialog."},
    {"set abc 5", "There is no control abc in this dialog."},
    {"set 11.0 5", "There is no control 11.0 in this dialog."},
    {"set 99999999999", "There is no control 99999999999 in this dialog."},
    {"set 65547 5", "There is no control 65547 in this dialog."},
    {"set 10 5", "Control 10 is a label, which does not take set."},
    {"set 30 5", "Control 30 is a combo, which does not take set."},
    {"click 11", "Control 11 is an edit, which does not take click."},
    {"click 20", "Control 20 is a group, which does not take click."},
    {"click 41", "Control 41 is a line, which does not take click."},
    {"check 12 on", "Control 12 is a button, which does not take check."},
    {"select 11 5", "Control 11 is an edit, which does not take select."},
    {"COLOR 23 5", "Control 23 is a check, which does not take color."},
    {"set 14 5", "Control 14 is disabled."},
    {"click 50", "Control 50 is disabled."},
    {"check 23", "Say on or off: check 23 on"},
    {"check 23 maybe", "Say on or off: check 23 on"},
    {"check 21 off", "Control 21 goes off only when another button of its group is clicked."},
    {"select 30", "Control 30 has no item \"\"."},
    {"select 30 Note", "Control 30 has no item \"Note\"."},
    {"select 30 #3", "Control 30 has no item #3."},
    {"select 30 #-1", "Control 30 has no item #-1."},
    {"select 30 #", "Control 30 has no item #."},
    {"select 30 #two", "Control 30 has no item #two."},
    {"color 30 5", "Control 30 is no list of colours."},
    {"color 31 257", "Control 31 has no item for the colour \"257\"."},
    {"color 31 -1", "Control 31 has no item for the colour \"-1\"."},
    {"color 31 red", "Control 31 has no item for the colour \"red\"."},
    {"color 31", "Control 31 has no item for the colour \"\"."},
};

TEST(DialogLines, aWrongLineIsToldAndChangesNothing)
{
    for (const Wrong& row : wrongs)
    {
        Panel panel;
        std::string before;
        const auto state = [&]
        {
            return std::to_string(panel.styles.GetCurSel()) +
                   std::to_string(panel.colors.GetCurSel()) +
                   std::to_string(panel.colors.GetCount()) +
                   std::to_string(panel.checked(Panel::lines)) +
                   std::to_string(panel.text(Panel::step).size());
        };
        panel.onInit = [&] { before = state(); };
        const std::string line = said(panel, {row.line}, [&] { EXPECT_EQ(state(), before); });
        EXPECT_EQ(line, std::string(row.complaint) + "\n");
        EXPECT_EQ(panel.told, Lines{"1 0"}) << row.line;
    }
}

TEST(DialogLines, anUnknownWordIsAnsweredWithTheKnownOnes)
{
    const std::string known =
        "A dialog takes set, check, click, select, color, show and close, not ";
    for (const std::string line : {"press 12", "12", "set11 5", "close?"})
    {
        Panel panel;
        EXPECT_EQ(said(panel, {" " + line + " "}), known + "\"" + line + "\".\n");
        EXPECT_EQ(panel.told, Lines{"1 0"});
    }
}

TEST(DialogLines, showPrintsEveryControlInTheOrderOfTheTemplate)
{
    Panel panel;
    EXPECT_EQ(said(panel, {"set 11 2.5", "check 23 on", "select 30 Notes", "color 31 12", "show"}),
              "[control] 10 label enabled - \"Step:\"\n"
              "[control] 11 edit enabled - \"2.5\"\n"
              "[control] 12 button enabled - \"Pick\"\n"
              "[control] 13 label enabled - \"Size:\"\n"
              "[control] 14 edit disabled - \"\"\n"
              "[control] 20 group enabled - \" Look \"\n"
              "[control] 21 radio enabled checked \"Lines\"\n"
              "[control] 22 radio enabled unchecked \"Crosses\"\n"
              "[control] 23 check enabled checked \"Erase\"\n"
              "[control] 30 combo enabled selected=1 \"Notes\"\n"
              "[control] 31 combo enabled selected=0 \"Color 12\"\n"
              "[control] 40 line enabled - \"\"\n"
              "[control] 41 line enabled - \"\"\n"
              "[control] 50 button enabled - \"More\"\n"
              "[control] 1 button enabled - \"OK\"\n"
              "[control] 2 button enabled - \"Cancel\"\n");
}

TEST(DialogLines, anUnselectedListShowsMinusOne)
{
    Panel panel;
    EXPECT_NE(said(panel, {"show"}).find("[control] 30 combo enabled selected=-1 \"\"\n"),
              std::string::npos);
}

TEST(DialogLines, theQuestionCarriesTheCaptionAndNoPrompt)
{
    Panel panel;
    support::Session session;
    session.run([&] { panel.DoModal(); }, {"^C"});
    ASSERT_EQ(session.questions.size(), 1U);
    EXPECT_EQ(session.questions[0].kind, host::Question::Kind::dialog);
    EXPECT_EQ(session.questions[0].caption, L"Panel");
    EXPECT_EQ(session.questions[0].prompt, L"");
}
}  // namespace
