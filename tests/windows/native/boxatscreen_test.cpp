// A message box on the screen while a console waits for its answer.
#include <gtest/gtest.h>

#include "host/editor/editor.h"
#include "tests/support/session.h"
#include "tests/windows/native/person.h"

namespace
{
using Kind = host::Answer::Kind;

struct Box
{
    int id;
    std::vector<Kind> answers;
};

Box shown(const std::function<void(HWND box)>& work)
{
    const support::Session session;
    Person person(
        [&](const host::Question& question) -> host::Answer
        {
            const HWND box = dialogOf(question);
            work(box);
            const bool isGone = comesTrue([&] { return !IsWindow(box); });
            return {.kind = Kind::line, .text = isGone ? L"late" : L"yes"};
        });
    const host::Editor editor(person, false);
    const int id = MessageBoxW(nullptr, L"Proceed?", L"Many lines", MB_YESNO);
    return {id, person.answers};
}

TEST(BoxAtTheScreen, isAnsweredWithAClick)
{
    const Box box = shown([](HWND window) { clickOn(GetDlgItem(window, IDNO)); });
    EXPECT_EQ(box.id, IDNO);
    EXPECT_EQ(box.answers, std::vector{Kind::withdrawn});
}

TEST(BoxAtTheScreen, isAnsweredWithKeys)
{
    const Box box = shown(
        [](HWND window)
        {
            press(VK_TAB);
            comesTrue([&] { return focusAt(window) == GetDlgItem(window, IDNO); });
            press(VK_RETURN);
        });
    EXPECT_EQ(box.id, IDNO);
    EXPECT_EQ(box.answers, std::vector{Kind::withdrawn});
}
}  // namespace
