// The editor: one command line, and the state that commands share through it. Accessors return
// [borrowed] parts that live as long as the editor and change with its state.
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
// The options that acedInitGet has set for the next prompt.
struct PromptOptions
{
    int bits = 0;
    KeywordList keywords{};
};

// The text or keyword that the last prompt accepted instead of its own kind of value.
struct PromptInput
{
    std::wstring text;
    bool isKeyword = false;
};

// Serves the module's calls as long as the object exists, from one thread at a time.
class Editor
{
public:
    // Creates the editor for a front end [borrowed] that outlives it. `trace` makes traceLine
    // print.
    Editor(FrontEnd& frontEnd, bool trace);
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    // Returns the existing editor [borrowed], or null when there is no command line.
    static Editor* current();

    // Prints the text unchanged and adds no line end [prints].
    void print(std::wstring_view text);
    // Prints the text on a separate line [prints].
    void printLine(std::wstring_view line);
    // Prints the text on a separate line if events are traced [prints].
    void traceLine(std::wstring_view line);
    // Reports a line about the run itself, apart from what the user reads.
    void report(std::wstring_view line) const;
    // Reports the line and makes the session end with a failure.
    void fail(std::wstring_view line);

    // Shows the prompt, waits for the answer, echoes it and ends the line [prints]. A prompt of the
    // command line under a shown dialog is a breach.
    Answer ask(const Question& question);
    // Asks as `ask` does but echoes nothing, for a caller that decides by the answer what to echo.
    Answer askSilently(const Question& question);
    // Prints the text as the answer and ends the line, unless the user sees the answer already.
    void echo(const Answer& answer, std::wstring_view text);
    // Keeps an answer that was meant for the next question, which receives it.
    void putBack(Answer answer) { m_putBack = std::move(answer); }

    // Returns the options for this prompt and clears them, because they apply to one prompt only.
    PromptOptions takeOptions() { return std::exchange(m_options, {}); }
    // Sets the options for the next prompt.
    void setOptions(PromptOptions options) { m_options = std::move(options); }

    // Tells whether the input has ended.
    bool inputEnded() const { return m_inputEnded; }
    // Tells whether the input ended while a command was asking.
    bool endedInsideCommand() const { return m_unansweredQuestions > 0; }
    // Tells whether `fail` was called.
    bool failed() const { return m_failed; }

    // Record that a command begins or ends. Calls come in pairs; the innermost command ends first.
    void beginCommand(CommandPtr command) { m_running.push_back(std::move(command)); }
    void endCommand() { m_running.pop_back(); }
    // Returns the running commands, the outermost first.
    const std::vector<CommandPtr>& running() const { return m_running; }

    // Return and set the line that Enter at the command prompt repeats. It is empty before the
    // first line.
    const std::wstring& lastLine() const { return m_lastLine; }
    void rememberLine(std::wstring line) { m_lastLine = std::move(line); }

    // Return and set the input that acedGetInput returns. It stays until a prompt accepts other
    // input.
    const PromptInput& lastInput() const { return m_lastInput; }
    void noteInput(PromptInput input) { m_lastInput = std::move(input); }

    // Return and set the variable ERRNO.
    int errorNumber() const { return m_errorNumber; }
    void setErrorNumber(int number) { m_errorNumber = number; }

    // Returns the progress meter, or no value when none is shown.
    const std::optional<Meter>& meter() const { return m_meter; }
    // Shows the meter at once. No value removes the meter.
    void setMeter(std::optional<Meter> meter);

    // Ends the session after this command, unless `mayQuit` was given and returns false.
    void quit() { m_quit = !m_mayQuit || m_mayQuit(); }
    // Sets the function that decides whether the session may end.
    void askBeforeQuitting(std::function<bool()> mayQuit) { m_mayQuit = std::move(mayQuit); }
    // Tells whether the session ends after this command.
    bool hasQuit() const { return m_quit; }

    // Returns the dialogs that are shown. While a dialog is shown, a prompt of the command line is
    // a breach.
    ShownDialogs& dialogs() { return m_dialogs; }

    // Tells whether a person reads the output and types.
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

// Tells whether the answer is Esc, or the end of the input, which counts as Esc.
inline bool cancelled(const Answer& answer)
{
    return answer.kind == Answer::Kind::cancel || answer.kind == Answer::Kind::endOfInput;
}
}  // namespace host
