// A question that a click on a window has answered while somebody waits for a line at the console.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/editor/rendezvous.h"

namespace
{
using Kind = host::Answer::Kind;

TEST(WithdrawnQuestion, endsTheWaitAtTheConsoleAndWhatThatBringsIsNoAnswer)
{
    std::atomic<bool> waits = false;
    std::atomic<bool> isEnded = false;
    host::Rendezvous rendezvous({},
                                [&]
                                {
                                    isEnded = true;
                                    return true;
                                });
    std::thread console(
        [&]
        {
            while (const auto question = rendezvous.waitForQuestion())
            {
                waits = true;
                while (question->isWithdrawn && !isEnded)
                {
                    std::this_thread::yield();
                }
                rendezvous.answer({.kind = Kind::line, .text = question->prompt, .visible = true});
            }
        });
    const host::Answer first =
        rendezvous.ask({.prompt = L"first", .isWithdrawn = [&] { return waits.load(); }});
    const host::Answer second = rendezvous.ask({.prompt = L"second"});
    rendezvous.finish();
    console.join();
    EXPECT_TRUE(isEnded);
    EXPECT_EQ(first.kind, Kind::withdrawn);
    EXPECT_TRUE(first.visible) << "the line at the console has been ended";
    EXPECT_EQ(second.text, L"second");
}
}  // namespace
