#include "host/editor/rendezvous.h"

#include <chrono>
#include <utility>

#include "host/windows/pendingmessages.h"

namespace host
{
namespace
{
// The longest time that the end of a wait may take. It takes this long only if the console is gone.
const std::chrono::seconds patience(2);
}  // namespace

Rendezvous::Rendezvous(std::function<void()> onQuestion, std::function<bool()> endWait)
    : m_onQuestion(std::move(onQuestion)), m_endWait(std::move(endWait))
{
}

Answer Rendezvous::ask(const Question& question)
{
    std::unique_lock lock(m_mutex);
    // The owner may still wait for the answer to a withdrawn question; that answer counts here.
    if (!std::exchange(m_isOwed, false))
    {
        post(question, lock);
    }
    while (!m_answer)
    {
        waitALittle(lock);
        if (!m_answer && question.isWithdrawn && question.isWithdrawn())
        {
            return withdraw(lock);
        }
    }
    return *std::exchange(m_answer, std::nullopt);
}

void Rendezvous::post(const Question& question, std::unique_lock<std::mutex>& lock)
{
    m_question = question;
    m_changed.notify_all();
    if (m_onQuestion)
    {
        // The lock is released, because the owner may take the question from inside the call.
        lock.unlock();
        m_onQuestion();
        lock.lock();
    }
}

// Waits for the answer and meanwhile dispatches the messages of the command thread's windows.
void Rendezvous::waitALittle(std::unique_lock<std::mutex>& lock)
{
    const auto isAnswered = [this] { return m_answer.has_value(); };
    lock.unlock();
    const bool hasWindows = dispatchPendingMessages();
    lock.lock();
    if (hasWindows)
    {
        m_changed.wait_for(lock, std::chrono::milliseconds(10), isAnswered);
    }
    else
    {
        m_changed.wait(lock, isAnswered);
    }
}

// Withdraws the question. No messages of windows are dispatched meanwhile, because a question that
// they ask would get the answer that is to be dropped.
Answer Rendezvous::withdraw(std::unique_lock<std::mutex>& lock)
{
    Answer dropped{.kind = Answer::Kind::withdrawn};
    m_isOwed = !std::exchange(m_question, std::nullopt);
    if (m_isOwed && m_endWait && m_endWait() &&
        m_changed.wait_for(lock, patience, [this] { return m_answer.has_value(); }))
    {
        dropped.visible = m_answer->visible;
        m_answer.reset();
        m_isOwed = false;
    }
    return dropped;
}

void Rendezvous::finish()
{
    const std::lock_guard lock(m_mutex);
    m_finished = true;
    m_changed.notify_all();
}

std::optional<Question> Rendezvous::waitForQuestion()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_question.has_value() || m_finished; });
    return std::exchange(m_question, std::nullopt);
}

void Rendezvous::answer(Answer answer)
{
    const std::lock_guard lock(m_mutex);
    m_answer = std::move(answer);
    m_changed.notify_all();
}
}  // namespace host
