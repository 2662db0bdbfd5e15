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
    explicit Rendezvous(std::function<void()> onQuestion = {});

    // The command's side: blocks until the owner has answered, or the question is withdrawn. Then
    // the answer to it, when it comes, is that of the next question.
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

    std::function<void()> m_onQuestion;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::optional<Question> m_question;
    std::optional<Answer> m_answer;
    bool m_isOwed = false;  // an answer to a question that was withdrawn
    bool m_finished = false;
};
}  // namespace host
