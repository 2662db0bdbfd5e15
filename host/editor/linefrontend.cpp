#include "host/editor/linefrontend.h"

#include <cstdio>
#include <iterator>
#include <thread>
#include <utility>

#include "host/editor/scripttext.h"
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

LineReader::LineReader(std::istream& input, bool visible, std::string name)
    : m_input(&input), m_visible(visible), m_name(std::move(name))
{
    m_input->exceptions(std::ios::badbit);
}

// Switches to UTF-16 if the input begins with its mark. The first byte of the mark suffices,
// because that byte never occurs in UTF-8.
void LineReader::begin()
{
    const int first = m_input->peek();
    if (first == 0xFF || first == 0xFE)
    {
        const std::string bytes(std::istreambuf_iterator<char>(*m_input), {});
        const Result<std::string> text = scriptText(bytes, m_name);
        if (!text)
        {
            throw UnreadableInput(text.failure());
        }
        m_converted.str(*text);
        m_input = &m_converted;
    }
}

// Reads the bytes of a line without its end; returns false at the end of the input. A line without
// an end, as a device may send it, is given up at a limit.
bool LineReader::readBytes(std::string& line)
{
    const std::size_t longest = 1 << 20;
    line.clear();
    for (int byte = m_input->get(); byte != EOF; byte = m_input->get())
    {
        if (byte == '\n')
        {
            return true;
        }
        line += char(byte);
        if (line.size() > longest)
        {
            throw UnreadableInput(
                {m_name + ": line " + std::to_string(m_number) + ": expected its end"});
        }
    }
    return !line.empty();
}

bool LineReader::read(std::string& line)
{
    if (++m_number == 1)
    {
        begin();
    }
    if (!readBytes(line))
    {
        return false;
    }
    if (m_number == 1 && line.starts_with("\xEF\xBB\xBF"))
    {
        line.erase(0, 3);
    }
    const Result<> checked = m_visible ? Done{} : checkUtf8(line, m_name, m_number);
    if (!checked)
    {
        throw UnreadableInput(checked.failure());
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
    : m_reader(reader),
      m_output(std::move(output)),
      m_rendezvous({}, [this] { return m_reader.endWait(); })
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
