#include "host/editor/linefrontend.h"

#include <gtest/gtest.h>

#include <sstream>
#include <thread>

#include "host/editor/editor.h"
#include "rxmfcapi.h"

namespace
{
using Kind = host::Answer::Kind;

TEST(LineReader, linesAreAnswers)
{
    std::istringstream input(
        "\xEF\xBB\xBF; a comment behind the mark\n"
        "zv_netrax\r\n"
        "; another one\n"
        "\n"
        "^C\n"
        " ^C\n"
        "Настройки\n"
        "\r\n"
        "last");
    host::LineReader reader(input, false);
    const struct
    {
        Kind kind;
        const wchar_t* text;
    } expected[] = {
        {Kind::line, L"zv_netrax"}, {Kind::enter, L""},         {Kind::cancel, L""},
        {Kind::line, L" ^C"},       {Kind::line, L"Настройки"}, {Kind::enter, L""},
        {Kind::line, L"last"},      {Kind::endOfInput, L""},    {Kind::endOfInput, L""},
    };
    for (const auto& row : expected)
    {
        const host::Answer answer = reader.next({});
        EXPECT_EQ(answer.kind, row.kind);
        EXPECT_EQ(answer.text, row.text);
        EXPECT_FALSE(answer.visible);
    }
}

TEST(LineReader, typingAtATerminalIsSeenAlready)
{
    std::istringstream input("a\n\n^C\n");
    host::LineReader reader(input, true);
    EXPECT_TRUE(reader.next({}).visible);
    EXPECT_TRUE(reader.next({}).visible);
    EXPECT_TRUE(reader.next({}).visible);
    EXPECT_FALSE(reader.next({}).visible);  // no user typed the end
}

TEST(LineFrontEnd, questionsMeetTheThreadThatOwnsTheInput)
{
    std::istringstream input("one\ntwo\n");
    host::LineReader reader(input, false);
    std::string printed, reported;
    host::LineFrontEnd frontEnd(reader,
                                {.print = [&](std::string_view text) { printed += text; },
                                 .report = [&](std::string_view line) { reported += line; }});
    const std::thread::id owner = std::this_thread::get_id();
    std::wstring answers;
    frontEnd.serve(
        [&]
        {
            EXPECT_NE(std::this_thread::get_id(), owner);
            std::thread other([&] { frontEnd.print("x"); });
            frontEnd.print("x");
            answers += frontEnd.ask({}).text;
            answers += frontEnd.ask({}).text;
            EXPECT_EQ(frontEnd.ask({}).kind, Kind::endOfInput);
            frontEnd.report("done");
            other.join();
        });
    EXPECT_EQ(answers, L"onetwo");
    EXPECT_EQ(printed, "xx");
    EXPECT_EQ(reported, "done");
}

TEST(LineFrontEnd, meterIsShownWhereThereIsAPlaceForIt)
{
    std::istringstream input;
    host::LineReader reader(input, false);
    const auto ignore = [](std::string_view) {};
    std::string shown;
    host::LineFrontEnd meterless(reader, {.print = ignore, .report = ignore});
    host::LineFrontEnd frontEnd(reader, {.print = ignore,
                                         .report = ignore,
                                         .showMeter = [&](const std::optional<host::Meter>& meter) {
                                             shown += meter ? std::to_string(meter->position) + " "
                                                            : "gone";
                                         }});
    for (host::LineFrontEnd* const each : {&meterless, &frontEnd})
    {
        host::Editor editor(*each, false);
        acedSetStatusBarProgressMeter(L"Grouping", 2, 10);
        acedSetStatusBarProgressMeterPos(-3);
        acedRestoreStatusBar();
    }
    EXPECT_EQ(shown, "2 5 gone");
}

TEST(LineFrontEnd, jobMayEndWithoutAQuestion)
{
    std::istringstream input;
    host::LineReader reader(input, false);
    host::LineFrontEnd frontEnd(
        reader, {.print = [](std::string_view) {}, .report = [](std::string_view) {}});
    bool ran = false;
    frontEnd.serve([&] { ran = true; });
    EXPECT_TRUE(ran);
}

TEST(Rendezvous, ownerWithAnEventLoopIsWokenForEachQuestion)
{
    host::Rendezvous* meeting = nullptr;
    int wakes = 0;
    // The owner that comes for the question from inside the call is the hardest case.
    host::Rendezvous rendezvous(
        [&]
        {
            ++wakes;
            const auto question = meeting->waitForQuestion();
            meeting->answer({.kind = Kind::line, .text = question->prompt});
        });
    meeting = &rendezvous;
    EXPECT_EQ(rendezvous.ask({.prompt = L"first"}).text, L"first");
    EXPECT_EQ(rendezvous.ask({.prompt = L"second"}).text, L"second");
    EXPECT_EQ(wakes, 2);
    rendezvous.finish();
    EXPECT_FALSE(rendezvous.waitForQuestion());
}
}  // namespace
