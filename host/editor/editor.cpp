#include "host/editor/editor.h"

#include <utility>

#include "host/editor/messageboxes.h"
#include "host/basics/breach.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
Editor* theEditor = nullptr;

// Only a command that ignores the answer asks this often after Esc.
const int patience = 1000;

const char* callOf(Question::Kind kind)
{
    switch (kind)
    {
        case Question::Kind::point:
            return "acedGetPoint";
        case Question::Kind::corner:
            return "acedGetCorner";
        case Question::Kind::distance:
            return "acedGetDist";
        case Question::Kind::keyword:
            return "acedGetKword";
        default:
            return "a prompt";
    }
}

// Returns the text to echo. The end of the input at the command prompt echoes nothing, because the
// user did not press Esc.
std::wstring_view echoOf(const Question& question, const Answer& answer)
{
    const bool normalEnd =
        answer.kind == Answer::Kind::endOfInput && question.kind == Question::Kind::command;
    return normalEnd ? L"" : cancelled(answer) ? L"^C" : std::wstring_view(answer.text);
}
}  // namespace

Editor::Editor(FrontEnd& frontEnd, bool trace) : m_frontEnd(frontEnd), m_trace(trace)
{
    theEditor = this;
    answerMessageBoxes(this);
}

Editor::~Editor()
{
    answerMessageBoxes(nullptr);
    theEditor = nullptr;
}

Editor* Editor::current()
{
    return theEditor;
}

void Editor::print(std::wstring_view text)
{
    if (text.empty())
    {
        return;
    }
    m_frontEnd.print(toUtf8(text));
    m_atLineStart = text.back() == L'\n';
}

void Editor::printLine(std::wstring_view line)
{
    print((m_atLineStart ? L"" : L"\n") + std::wstring(line) + L"\n");
}

void Editor::traceLine(std::wstring_view line)
{
    if (m_trace)
    {
        printLine(line);
    }
}

void Editor::fail(std::wstring_view line)
{
    report(line);
    m_failed = true;
}

void Editor::report(std::wstring_view line) const
{
    m_frontEnd.report(toUtf8(line));
}

void Editor::setMeter(std::optional<Meter> meter)
{
    m_meter = std::move(meter);
    m_frontEnd.showMeter(m_meter);
}

Answer Editor::ask(const Question& question)
{
    const Answer answer = askSilently(question);
    echo(answer, echoOf(question, answer));
    return answer;
}

Answer Editor::askSilently(const Question& question)
{
    requireNoDialog(question);
    const bool ownLine = question.kind == Question::Kind::command ||
                         question.kind == Question::Kind::messageBox ||
                         question.kind == Question::Kind::dialog;
    print((ownLine && !m_atLineStart ? L"\n" : L"") + question.prompt);
    Answer answer = m_putBack ? *std::exchange(m_putBack, std::nullopt) : m_frontEnd.ask(question);
    if (answer.kind == Answer::Kind::endOfInput)
    {
        noteEnd(question);
    }
    return answer;
}

void Editor::echo(const Answer& answer, std::wstring_view text)
{
    // At a terminal the Enter that ended the typed line has also ended the line of the prompt.
    if (answer.visible)
    {
        m_atLineStart = true;
        return;
    }
    print(std::wstring(text) + L"\n");
}

// Stops a module that asks at the command line while a dialog is shown. The dialog holds the user's
// input, so the user could not answer the prompt.
void Editor::requireNoDialog(const Question& question) const
{
    const bool ownWindow =
        question.kind == Question::Kind::dialog || question.kind == Question::Kind::messageBox;
    if (m_dialogs.count() > 0 && !ownWindow)
    {
        breach(callOf(question.kind), "asked while a dialog is shown, without BeginEditorCommand");
    }
}

void Editor::noteEnd(const Question& question)
{
    m_inputEnded = true;
    if (question.kind == Question::Kind::command)
    {
        return;
    }
    const std::wstring name = m_running.empty() ? L"a question" : m_running.front()->globalName();
    if (++m_unansweredQuestions == 1)
    {
        report(L"the input ended in the middle of " + name);
    }
    if (m_unansweredQuestions == patience)
    {
        breach(toUtf8(name), "asks again and again although it is cancelled");
    }
}
}  // namespace host
