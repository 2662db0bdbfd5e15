// Dialogs that step aside while the user answers at the command line.
#include <gtest/gtest.h>

#include <memory>

#include "acedads.h"
#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

namespace
{
using Lines = std::vector<std::string>;

std::string show(Panel& panel, const Lines& lines)
{
    support::Session session;
    const std::string said = session.run([&] { panel.DoModal(); }, lines);
    EXPECT_EQ(session.questions.size(), lines.size()) << said;
    return said;
}

TEST(EditorCommandsInDialogs, linesAnswerThePromptUntilTheDialogComesBack)
{
    Panel panel;
    ads_real picked = 0;
    panel.onPick = [&]
    {
        panel.BeginEditorCommand();
        EXPECT_FALSE(panel.IsWindowVisible());
        EXPECT_EQ(acedGetDist(nullptr, L"\nStep: ", &picked), RTNORM);
        panel.CompleteEditorCommand();
        EXPECT_TRUE(panel.IsWindowVisible());
    };
    EXPECT_EQ(show(panel, {"click 12", "show", "0,0", "3,4", "set 11 5", "click 12", "7", ""}),
              "[dialog] Panel\n"
              "\nStep: show\n"
              "Requires numeric distance or two points.\n"
              "\nStep: 0,0\n"
              "Specify second point: 3,4\n"
              "\nStep: 7\n"
              "[dialog closed] ok\n");
    EXPECT_EQ(picked, 7);
}

TEST(EditorCommandsInDialogs, escAtThePromptBringsTheDialogBack)
{
    Panel panel;
    panel.onPick = [&]
    {
        ads_point point;
        panel.BeginEditorCommand();
        EXPECT_EQ(acedGetPoint(nullptr, L"\nPoint: ", point), RTCAN);
        panel.CancelEditorCommand();
        EXPECT_TRUE(panel.IsWindowVisible());
    };
    EXPECT_EQ(show(panel, {"click 12", "^C", "^C"}),
              "[dialog] Panel\n\nPoint: ^C\n[dialog closed] cancel\n");
}

TEST(EditorCommandsInDialogs, aDialogMayStepAsideForGood)
{
    Panel panel;
    panel.onPick = [&]
    {
        panel.BeginEditorCommand();
        panel.CompleteEditorCommand(FALSE);
        panel.EndDialog(IDOK);
    };
    EXPECT_EQ(show(panel, {"click 12"}), "[dialog] Panel\n[dialog closed] ok\n");
}

TEST(EditorCommandsInDialogs, alertsAndMessageBoxesMayComeAtAnyTime)
{
    Panel panel;
    panel.onPick = [&]
    {
        acedAlert(L"Zero");
        EXPECT_EQ(MessageBoxW(panel.m_hWnd, L"Go on?", L"Attention", MB_YESNO), IDNO);
        panel.BeginEditorCommand();
        EXPECT_EQ(MessageBoxW(panel.m_hWnd, L"Go on?", L"Attention", MB_YESNO), IDYES);
        panel.CompleteEditorCommand();
    };
    const std::string box = "[message box] Attention: Go on? (Yes/No) -> ";
    EXPECT_EQ(
        show(panel, {"click 12", "no", "yes", "^C"}),
        "[dialog] Panel\n[alert] Zero\n" + box + "no\n" + box + "yes\n[dialog closed] cancel\n");
}

void askPoint()
{
    ads_point point;
    acedGetPoint(nullptr, L"", point);
}

void askCorner()
{
    const ads_point first = {0, 0, 0};
    ads_point other;
    acedGetCorner(first, L"", other);
}

void askDistance()
{
    ads_real length;
    acedGetDist(nullptr, L"", &length);
}

void askKeyword()
{
    ACHAR word[132];
    acedInitGet(0, L"Yes");
    acedGetKword(L"", word);
}

struct Prompt
{
    const char* name;
    void (*ask)();
};

const Prompt prompts[] = {
    {"acedGetPoint", askPoint},
    {"acedGetCorner", askCorner},
    {"acedGetDist", askDistance},
    {"acedGetKword", askKeyword},
};

TEST(EditorCommandsInDialogs, aPromptUnderAShownDialogIsABreachThatNamesIt)
{
    for (const Prompt& row : prompts)
    {
        Panel panel;
        panel.onPick = row.ask;
        EXPECT_EXIT(show(panel, {"click 12", "1"}), testing::ExitedWithCode(1),
                    std::string("arxhost: ") + row.name + ": asked while a dialog is shown");
        panel.onPick = [&]
        {
            panel.BeginEditorCommand();
            panel.CompleteEditorCommand();
            row.ask();
        };
        EXPECT_EXIT(show(panel, {"click 12", "1"}), testing::ExitedWithCode(1), row.name);
    }
}

TEST(EditorCommandsInDialogs, promptsAreAllowedAgainAfterTheDialog)
{
    support::Session session;
    ads_real length = 0;
    const auto body = [&]
    {
        Panel panel;
        panel.onPick = [&] { panel.EndDialog(IDOK); };
        panel.DoModal();
        acedGetDist(nullptr, L"\nStep: ", &length);
    };
    session.run(body, {"click 12", "8"});
    EXPECT_EQ(length, 8);
}

const char began[] = "BeginEditorCommand: there was no CompleteEditorCommand";
const char notBegun[] = "EditorCommand: called without BeginEditorCommand";

struct Fault
{
    const char* steps;  // of one handler, as `step` knows them
    std::string said;
};

const Fault faults[] = {
    {"bb", "BeginEditorCommand: called again before CompleteEditorCommand"},
    {"c", std::string("Complete") + notBegun},
    {"bcc", std::string("Complete") + notBegun},
    {"x", std::string("Cancel") + notBegun},
    {"bxx", std::string("Cancel") + notBegun},
    {"b", began},
    {"be", began},
    {"bd", "DestroyWindow: a dialog that is shown ends with EndDialog"},
    {"bde", "DestroyWindow: a dialog that is shown ends with EndDialog"},
    {"bf", "CDialog::DoModal: the dialog is hidden"},
};

void step(Panel& panel, char name)
{
    switch (name)
    {
        case 'b':
            return panel.BeginEditorCommand();
        case 'c':
            return panel.CompleteEditorCommand();
        case 'f':
            return panel.CompleteEditorCommand(FALSE);
        case 'x':
            return panel.CancelEditorCommand();
        case 'e':
            return panel.EndDialog(IDOK);
        case 'd':
            DestroyWindow(panel.m_hWnd);
    }
}

TEST(EditorCommandsInDialogs, everyBeginHasOneEnd)
{
    for (const Fault& fault : faults)
    {
        Panel panel;
        panel.onPick = [&]
        {
            for (const char* at = fault.steps; *at != '\0'; ++at)
            {
                step(panel, *at);
            }
        };
        EXPECT_EXIT(show(panel, {"click 12", "show"}), testing::ExitedWithCode(1), fault.said);
    }
}

TEST(EditorCommandsInDialogs, anObjectThatGoesInBetweenIsABreach)
{
    auto panel = std::make_unique<Panel>();
    panel->onPick = [&]
    {
        panel->BeginEditorCommand();
        panel.reset();
    };
    EXPECT_EXIT(show(*panel, {"click 12"}), testing::ExitedWithCode(1),
                "BeginEditorCommand: .* no CompleteEditorCommand");
}
}  // namespace
