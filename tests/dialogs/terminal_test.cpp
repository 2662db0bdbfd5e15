// A dialog in front of a person at a terminal.
#include <gtest/gtest.h>

#include "acedads.h"
#include "host/editor/editor.h"
#include "tests/dialogs/panel.h"
#include "tests/support/session.h"

namespace
{
// Whoever types sees the line.
class Terminal : public support::Typist
{
public:
    host::Answer ask(const host::Question& question) override
    {
        host::Answer answer = Typist::ask(question);
        answer.visible = answer.kind != host::Answer::Kind::endOfInput;
        if (answer.visible)
        {
            transcript += "<>\n";  // where the person typed
        }
        return answer;
    }
    bool interactive() const override { return true; }
};

std::string atTheTerminal(Panel& panel, const std::vector<std::string>& lines)
{
    const support::Session session;
    Terminal terminal;
    terminal.lines.assign(lines.begin(), lines.end());
    host::Editor editor(terminal, false);
    panel.DoModal();
    return terminal.transcript;
}

const std::string help =
    "set ID TEXT, check ID on|off, click ID, select ID TEXT or #N, color ID N, show, close; "
    "Enter presses OK, ^C cancels\n";

// Returns the text of the panel that a user reads.
std::string view(const std::string& step)
{
    return "    11  Step: [" + step +
           "]\n"
           "    12  <Pick>\n"
           "-   14  Size: []\n"
           "    20  --- Look ---\n"
           "    21  (*) Lines\n"
           "    22  ( ) Crosses\n"
           "    23  [ ] Erase\n"
           "    30  []  one of: Standard, Notes, Two words\n"
           "    31  [Red]  one of: ByLayer, ByBlock, Red, Yellow, Green, Cyan, Blue, Magenta, "
           "White\n"
           "     1  <OK>\n"
           "     2  <Cancel>\n" +
           help;
}

TEST(DialogAtTheTerminal, isPrintedWhenItOpens)
{
    Panel panel;
    panel.onInit = [&] { panel.colors.SetCurSel(2); };
    EXPECT_EQ(atTheTerminal(panel, {"set 11 5", "frobnicate", ""}),
              "[dialog] Panel\n" + view("") +
                  "Dialog: <>\nDialog: <>\n"
                  "A dialog takes set, check, click, select, color, show and close, not "
                  "\"frobnicate\".\n"
                  "Dialog: <>\n[dialog closed] ok\n");
}

TEST(DialogAtTheTerminal, isPrintedAgainAfterAPick)
{
    Panel panel;
    panel.onInit = [&] { panel.colors.SetCurSel(2); };
    panel.onPick = [&]
    {
        ads_real length = 0;
        panel.BeginEditorCommand();
        acedGetDist(nullptr, L"\nStep: ", &length);
        panel.CompleteEditorCommand();
        panel.SetDlgItemText(Panel::step, L"7");
    };
    EXPECT_EQ(atTheTerminal(panel, {"click 12", "7"}), "[dialog] Panel\n" + view("") +
                                                           "Dialog: <>\n\nStep: <>\n" + view("7") +
                                                           "Dialog: \n[dialog closed] cancel\n");
}

TEST(DialogAtTheTerminal, aLabelWithoutAFieldStandsAlone)
{
    Panel panel(support::TemplateBuilder(L"Labels", 90, 40)
                    .control(10, L"Static", SS_LEFT, 0, 0, 9, 9, L"Base point:")
                    .control(11, L"Button", BS_OWNERDRAW, 0, 0, 9, 9, L"Pick")
                    .control(12, L"Static", WS_DISABLED, 0, 0, 9, 9, L"(0, 0)"));
    EXPECT_EQ(atTheTerminal(panel, {"^C"}),
              "[dialog] Labels\n"
              "    10  Base point:\n"
              "    11  <Pick>\n"
              "-   12  (0, 0)\n" +
                  help + "Dialog: <>\n[dialog closed] cancel\n");
}

TEST(DialogAtTheTerminal, anEmptyEditShowsItsBanner)
{
    for (const wchar_t* const text : {L"", L"7"})
    {
        Panel panel;
        panel.onInit = [&]
        {
            const auto banner = reinterpret_cast<LPARAM>(L"<шаг>");
            panel.SendDlgItemMessage(Panel::step, EM_SETCUEBANNER, FALSE, banner);
            panel.SetDlgItemText(Panel::step, text);
        };
        const std::string said = atTheTerminal(panel, {"^C"});
        const char* const line = *text ? "  11  Step: [7]\n" : "  11  Step: [] <шаг>\n";
        EXPECT_NE(said.find(line), std::string::npos) << said;
    }
}
}  // namespace
