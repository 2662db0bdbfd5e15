// The editor: one command line and what stands between it and the commands.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/editor/frontend.h"
#include "host/editor/keywords.h"
#include "host/editor/showndialogs.h"
#include "host/runtime/commandstack.h"

namespace host
{
// What acedInitGet has set for the next prompt.
struct PromptOptions
{
    int bits = 0;
    KeywordList keywords{};
};

// What the last prompt took that was no value of its own kind.
struct PromptInput
{
    std::wstring text;
    bool isKeyword = false;
};

// While one exists it serves the module's calls, from one thread at a time.
class Editor
{
public:
    Editor(FrontEnd& frontEnd, bool trace);
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // Null when nobody sits at a command line.
    static Editor* current();

    void print(std::wstring_view text);      // exactly
    void printLine(std::wstring_view line);  // on a line of its own
    void traceLine(std::wstring_view line);  // likewise, if events are to be told
    void report(std::wstring_view line) const;
    void fail(std::wstring_view line);  // likewise, and the session ends with a failure

    // Shows the prompt, waits for the answer, echoes it and ends the line.
    Answer ask(const Question& question);
    // The same in two steps, for a question whose answer has to be seen before it is echoed.
    Answer askSilently(const Question& question);
    void echo(const Answer& answer, std::wstring_view text);
    // The answer was meant for the next question: it is given again there.
    void putBack(Answer answer) { m_putBack = std::move(answer); }

    PromptOptions takeOptions() { return std::exchange(m_options, {}); }
    void setOptions(PromptOptions options) { m_options = std::move(options); }

    // The input has ended, and it did so while a command was asking.
    bool inputEnded() const { return m_inputEnded; }
    bool endedInsideCommand() const { return m_unansweredQuestions > 0; }
    bool failed() const { return m_failed; }

    // Commands begin and end in pairs, the innermost first.
    void beginCommand(CommandPtr command) { m_running.push_back(std::move(command)); }
    void endCommand() { m_running.pop_back(); }
    const std::vector<CommandPtr>& running() const { return m_running; }  // outermost first

    // What Enter at the command prompt starts again; empty before the first line.
    const std::wstring& lastLine() const { return m_lastLine; }
    void rememberLine(std::wstring line) { m_lastLine = std::move(line); }

    // For acedGetInput; it stays until a prompt takes another.
    const PromptInput& lastInput() const { return m_lastInput; }
    void noteInput(PromptInput input) { m_lastInput = std::move(input); }

    // The variable ERRNO.
    int errorNumber() const { return m_errorNumber; }
    void setErrorNumber(int number) { m_errorNumber = number; }

    // The progress meter, which is shown at once; nothing takes it away.
    const std::optional<Meter>& meter() const { return m_meter; }
    void setMeter(std::optional<Meter> meter);

    // Ends the session after this command, unless who was told to be asked says no.
    void quit() { m_quit = !m_mayQuit || m_mayQuit(); }
    void askBeforeQuitting(std::function<bool()> mayQuit) { m_mayQuit = std::move(mayQuit); }
    bool hasQuit() const { return m_quit; }

    // No prompt may be asked while one is shown.
    ShownDialogs& dialogs() { return m_dialogs; }

    bool interactive() const { return m_frontEnd.interactive(); }

private:
    void requireNoDialog(const Question& question) const;
    void noteEnd(const Question& question);

    FrontEnd& m_frontEnd;
    bool m_trace;
    bool m_atLineStart = true;
    PromptOptions m_options;
    std::optional<Answer> m_putBack;
    bool m_inputEnded = false;
    int m_unansweredQuestions = 0;
    bool m_failed = false;
    std::vector<CommandPtr> m_running;
    std::wstring m_lastLine;
    PromptInput m_lastInput;
    int m_errorNumber = 0;
    std::optional<Meter> m_meter;
    bool m_quit = false;
    std::function<bool()> m_mayQuit;
    ShownDialogs m_dialogs;
};

// Esc, or the end of the input, which counts as one.
inline bool cancelled(const Answer& answer)
{
    return answer.kind == Answer::Kind::cancel || answer.kind == Answer::Kind::endOfInput;
}
}  // namespace host
