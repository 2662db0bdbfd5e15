#include "host/editor/linefrontend.h"

#include <thread>
#include <utility>

#include "host/windows/text.h"

namespace host
{
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

Answer LineReader::next()
{
    std::string line;
    do
    {
        if (!read(line))
        {
            return {.kind = Answer::Kind::endOfInput};
        }
    } while (line.starts_with(';'));

    if (line.empty())
    {
        return {.kind = Answer::Kind::enter, .visible = m_visible};
    }
    if (line == "^C")
    {
        return {.kind = Answer::Kind::cancel, .visible = m_visible};
    }
    return {.kind = Answer::Kind::line, .text = fromUtf8(line), .visible = m_visible};
}

LineFrontEnd::LineFrontEnd(LineReader& reader, Writer print, Writer report)
    : m_reader(reader), m_print(std::move(print)), m_report(std::move(report))
{
}

void LineFrontEnd::print(std::string_view text)
{
    const std::lock_guard lock(m_printing);
    m_print(text);
}

void LineFrontEnd::report(std::string_view line)
{
    const std::lock_guard lock(m_printing);
    m_report(line);
}

void LineFrontEnd::serve(const std::function<void()>& job)
{
    std::thread command(
        [&]
        {
            job();
            m_rendezvous.finish();
        });
    while (m_rendezvous.waitForQuestion())
    {
        m_rendezvous.answer(m_reader.next());
    }
    command.join();
}
}  // namespace host
