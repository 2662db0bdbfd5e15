// Lets a command that asks meet the thread that owns the input.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

#include "host/editor/frontend.h"

namespace host
{
// Connects the thread of one command with one owner of the input. Either side may come first.
class Rendezvous
{
public:
    // `onQuestion`, if given, wakes an owner that runs an event loop; the owner then takes the
    // question with waitForQuestion. `endWait`, if given, makes an owner that waits for a line
    // answer at once, because the line is not needed any more; it returns false when it cannot do
    // that. Both functions are called on the command's thread.
    explicit Rendezvous(std::function<void()> onQuestion = {}, std::function<bool()> endWait = {});

    // The command's side: blocks until the owner has answered or the question is withdrawn. If
    // `endWait` ends the owner's wait, the answer that the owner then gives is dropped. Otherwise
    // the answer to the withdrawn question, when it comes, answers the next question.
    Answer ask(const Question& question);
    // The command's side: announces that no more questions come.
    void finish();

    // The owner's side: blocks until a question is asked; returns no value once the command has
    // finished.
    std::optional<Question> waitForQuestion();
    // The owner's side: gives the answer. Each question that was taken gets exactly one.
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
    bool m_isOwed = false;  // the owner still owes the answer to a withdrawn question
    bool m_finished = false;
};
}  // namespace host
