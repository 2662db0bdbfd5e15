// Where a command that asks meets the thread that owns the input.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

#include "host/editor/frontend.h"

namespace host
{
// One command's thread and one owner. Either side may come first.
class Rendezvous
{
public:
    // onQuestion, if given, wakes an owner that has an event loop of its own; it is called on the
    // command's thread, and the owner then takes the question with waitForQuestion.
    // endWait, if given, makes an owner answer at once who waits for a line that is not needed any
    // more; it is called on the command's thread too, and gives false when it cannot.
    explicit Rendezvous(std::function<void()> onQuestion = {}, std::function<bool()> endWait = {});

    // The command's side: blocks until the owner has answered, or the question is withdrawn. What
    // the owner brings when his wait is ended is dropped. Where it cannot be ended, the answer to
    // the withdrawn question is, when it comes, that of the next one.
    Answer ask(const Question& question);
    // The command's side: nothing more will be asked.
    void finish();

    // The owner's side: blocks until something is asked; nothing once the command has finished.
    std::optional<Question> waitForQuestion();
    // The owner's side: one answer to each question that was taken.
    void answer(Answer answer);

private:
    void post(const Question& question, std::unique_lock<std::mutex>& lock);
    void waitALittle(std::unique_lock<std::mutex>& lock);
    Answer withdraw(std::unique_lock<std::mutex>& lock);

    std::function<void()> m_onQuestion;
    std::function<bool()> m_endWait;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Question> m_question;
    std::optional<Answer> m_answer;
    bool m_isOwed = false;  // an answer to a question that was withdrawn
    bool m_finished = false;
};
}  // namespace host
