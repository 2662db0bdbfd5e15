#include "host/editor/rendezvous.h"

#include <utility>

namespace host
{
Rendezvous::Rendezvous(std::function<void()> onQuestion) : m_onQuestion(std::move(onQuestion)) {}

Answer Rendezvous::ask(const Question& question)
{
    std::unique_lock lock(m_mutex);
    m_question = question;
    m_changed.notify_all();
    if (m_onQuestion)
    {
        // Not under the lock: the owner may come for the question from inside the call.
        lock.unlock();
        m_onQuestion();
        lock.lock();
    }
    m_changed.wait(lock, [this] { return m_answer.has_value(); });
    return *std::exchange(m_answer, std::nullopt);
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
