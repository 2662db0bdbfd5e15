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
#include "host/runtime/commandstack.h"

namespace host
{
// What acedInitGet has set for the next prompt.
struct PromptOptions
{
    int bits = 0;
    KeywordList keywords{};
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
    void showMeter() { m_frontEnd.showMeter(meter); }  // whenever it has changed

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

    std::vector<CommandPtr> active;  // outermost first
    std::wstring lastLine;           // what Enter at the command prompt starts again
    std::wstring input;              // for acedGetInput
    bool inputIsKeyword = false;
    int errorNumber = 0;  // the variable ERRNO
    std::optional<Meter> meter;
    bool quit = false;
    std::function<bool()> mayQuit{};  // asked by QUIT; left out: it may
    int shownDialogs = 0;             // no prompt may be asked while there are any
    int picksFromDialogs = 0;         // times that a dialog has stepped aside

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
};

// Esc, or the end of the input, which counts as one.
inline bool cancelled(const Answer& answer)
{
    return answer.kind == Answer::Kind::cancel || answer.kind == Answer::Kind::endOfInput;
}
}  // namespace host
