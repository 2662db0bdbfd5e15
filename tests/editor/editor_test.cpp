#include <gtest/gtest.h>

#include "host/editor/editor.h"
#include "tests/support/session.h"

namespace
{
// Keeps what the editor shows of the meter.
class Watcher : public support::Typist
{
public:
    void showMeter(const std::optional<host::Meter>& meter) override
    {
        positions.push_back(meter ? meter->position : -1);
    }

    std::vector<int> positions;
};

class Editors : public testing::Test
{
protected:
    Watcher frontEnd;
    host::Editor editor{frontEnd, false};
};

TEST_F(Editors, everyChangeOfTheMeterIsShownAtOnce)
{
    editor.setMeter(host::Meter{L"Lines", 0, 10, 3});
    EXPECT_EQ(frontEnd.positions, std::vector{3});
    ASSERT_TRUE(editor.meter());
    EXPECT_EQ(editor.meter()->label, L"Lines");
    editor.setMeter(std::nullopt);
    EXPECT_EQ(frontEnd.positions, (std::vector{3, -1}));
    EXPECT_FALSE(editor.meter());
}

TEST_F(Editors, quittingEndsTheSessionUnlessItIsRefused)
{
    bool may = false;
    editor.askBeforeQuitting([&may] { return may; });
    editor.quit();
    EXPECT_FALSE(editor.hasQuit());
    may = true;
    editor.quit();
    EXPECT_TRUE(editor.hasQuit());
}

TEST_F(Editors, quittingEndsTheSessionWhereNobodyIsToBeAsked)
{
    EXPECT_FALSE(editor.hasQuit());
    editor.quit();
    EXPECT_TRUE(editor.hasQuit());
}

TEST_F(Editors, whatAPromptTookIsToldUntilAnotherTakesSomething)
{
    EXPECT_EQ(editor.lastInput().text, L"");
    editor.noteInput({L"Settings", true});
    for (int time = 0; time < 2; ++time)
    {
        EXPECT_EQ(editor.lastInput().text, L"Settings");
        EXPECT_TRUE(editor.lastInput().isKeyword);
    }
    editor.noteInput({L"other", false});
    EXPECT_EQ(editor.lastInput().text, L"other");
    EXPECT_FALSE(editor.lastInput().isKeyword);
}

TEST(ShownDialogs, oneThatStepsAsideIsNotShownAndCountsAsAPick)
{
    host::ShownDialogs dialogs;
    EXPECT_EQ(dialogs.show(), 1);
    EXPECT_EQ(dialogs.show(), 2);
    dialogs.stepAside();
    EXPECT_EQ(dialogs.count(), 1);
    EXPECT_EQ(dialogs.picks(), 1);
    dialogs.comeBack();
    EXPECT_EQ(dialogs.count(), 2);
    EXPECT_EQ(dialogs.picks(), 1);
    dialogs.hide();
    dialogs.hide();
    EXPECT_EQ(dialogs.count(), 0);
}

TEST(ShownDialogsDeathTest, noPromptIsAskedUnderADialogButOneThatHasSteppedAside)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    support::Typist typist;
    typist.lines = {"5"};
    host::Editor editor(typist, false);
    editor.dialogs().show();
    const host::Question question{.kind = host::Question::Kind::point, .prompt = L"Point: "};
    EXPECT_EXIT(editor.ask(question), testing::ExitedWithCode(1), "acedGetPoint: .*a dialog");
    editor.dialogs().stepAside();
    EXPECT_EQ(editor.ask(question).text, L"5");
}
}  // namespace
