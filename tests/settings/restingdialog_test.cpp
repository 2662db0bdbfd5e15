#include "settings/restingdialog.h"

#include <gtest/gtest.h>

#include "host/editor/editor.h"
#include "settings/settingsdlg.h"
#include "tests/support/session.h"

namespace
{
using Kind = host::Question::Kind;

// Notes of each question and alert whether the dialog could be worked meanwhile.
class Watcher : public support::Typist
{
public:
    explicit Watcher(std::vector<std::string> typed) { lines.assign(typed.begin(), typed.end()); }

    void print(std::string_view text) override
    {
        note(text.starts_with("[alert]"), "alert");
        Typist::print(text);
    }
    host::Answer ask(const host::Question& question) override
    {
        note(question.kind == Kind::dialog, "dialog");
        note(question.kind == Kind::messageBox, "box");
        return Typist::ask(question);
    }

    CDialog* dialog = nullptr;
    std::vector<std::string> states;

private:
    void note(bool happens, const std::string& what)
    {
        if (happens)
        {
            states.push_back(what + (dialog->IsWindowEnabled() ? " awake" : " resting"));
        }
    }
};

TEST(RestingDialog, doesNothingWhileAQuestionOrAnAlertIsOpenOverIt)
{
    const support::Session session;
    CSettingsDlg dialog(GridSettings(), 1000, 1000, L"en-US", L"Standard");
    Watcher watcher({"set 107 ", "click 1", "set 107 19", "set 109 19", "click 1", "no", "click 1",
                     "yes", "yes"});
    watcher.dialog = &dialog;
    const host::Editor editor(watcher, false);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    const std::vector<std::string> states = {
        "dialog awake", "dialog awake", "alert resting", "dialog awake", "dialog awake",
        "dialog awake", "box resting",  "dialog awake",  "box resting",  "box resting"};
    EXPECT_EQ(watcher.states, states);
}
}  // namespace
