#include "host/editor/scriptreader.h"

#include <algorithm>
#include <utility>

#include "host/text/foldcase.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
bool takesWholeLine(Question::Kind kind)
{
    return kind == Question::Kind::text || kind == Question::Kind::messageBox ||
           kind == Question::Kind::dialog;
}
}  // namespace

ScriptReader::ScriptReader(std::string text) : m_text(std::move(text))
{
    std::erase(m_text, '\r');
}

Answer ScriptReader::next(const Question& question)
{
    skipComments();
    // The separator after the previous answer has been consumed, so the rest cannot be an Enter.
    if (m_at == m_text.size())
    {
        return {.kind = Answer::Kind::endOfInput};
    }
    return answerOf(takesWholeLine(question.kind) ? takeRestOfLine() : takeToken(), false);
}

void ScriptReader::skipComments()
{
    while (m_at < m_text.size() && m_text[m_at] == ';' && (m_at == 0 || m_text[m_at - 1] == '\n'))
    {
        takeRestOfLine();
    }
}

// Takes one answer together with the separator that ends it. The end of the line closes a quote
// that was left open.
std::string ScriptReader::takeToken()
{
    std::string token;
    bool quoted = false;
    while (m_at < m_text.size())
    {
        const char letter = m_text[m_at++];
        const bool blank = letter == ' ' || letter == '\t';
        if (letter == '\n' || (blank && !quoted))
        {
            break;
        }
        if (letter == '"')
        {
            quoted = !quoted;
        }
        else
        {
            token += letter;
        }
    }
    return token;
}

std::string ScriptReader::takeRestOfLine()
{
    const std::size_t end = std::min(m_text.find('\n', m_at), m_text.size());
    const std::string rest = m_text.substr(m_at, end - m_at);
    m_at = std::min(end + 1, m_text.size());
    return rest;
}

bool isHostScript(const std::filesystem::path& file)
{
    return equalNoCase(fromUtf8(file.extension().string()), L".scr");
}
}  // namespace host
