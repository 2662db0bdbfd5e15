#include "host/editor/linefrontend.h"

#include <thread>
#include <utility>

#include "host/windows/text.h"

namespace host
{
Answer answerOf(std::string_view line, bool visible)
{
    if (line.empty())
    {
        return {.kind = Answer::Kind::enter, .visible = visible};
    }
    if (line == "^C")
    {
        return {.kind = Answer::Kind::cancel, .visible = visible};
    }
    return {.kind = Answer::Kind::line, .text = fromUtf8(line), .visible = visible};
}

LineReader::LineReader(std::istream& input, bool visible) : m_input(input), m_visible(visible)
{
    m_input.exceptions(std::ios::badbit);
}

bool LineReader::read(std::string& line)
{
    if (!std::getline(m_input, line))
    {
        return false;
    }
    if (std::exchange(m_first, false) && line.starts_with("\xEF\xBB\xBF"))
    {
        line.erase(0, 3);
    }
    if (line.ends_with('\r'))
    {
        line.pop_back();
    }
    return true;
}

Answer LineReader::next(const Question&)
{
    std::string line;
    do
    {
        if (!read(line))
        {
            return {.kind = Answer::Kind::endOfInput};
        }
    } while (line.starts_with(';'));
    return answerOf(line, m_visible);
}

LineFrontEnd::LineFrontEnd(AnswerReader& reader, LineOutput output)
    : m_reader(reader), m_output(std::move(output))
{
}

void LineFrontEnd::print(std::string_view text)
{
    const std::lock_guard lock(m_printing);
    m_output.print(text);
}

void LineFrontEnd::report(std::string_view line)
{
    const std::lock_guard lock(m_printing);
    m_output.report(line);
}

void LineFrontEnd::showMeter(const std::optional<Meter>& meter)
{
    if (!m_output.showMeter)
    {
        return;
    }
    const std::lock_guard lock(m_printing);
    m_output.showMeter(meter);
}

void LineFrontEnd::serve(const std::function<void()>& job)
{
    std::thread command(
        [&]
        {
            job();
            m_rendezvous.finish();
        });
    while (const std::optional<Question> question = m_rendezvous.waitForQuestion())
    {
        m_rendezvous.answer(answerTo(*question));
    }
    command.join();
}
}  // namespace host
