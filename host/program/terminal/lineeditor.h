// Reads answers typed at a terminal, with editing, history and completion.
#pragma once

#include <histedit.h>

#include <memory>
#include <optional>
#include <string>

#include "host/editor/linefrontend.h"
#include "host/program/terminal/screen.h"

namespace host
{
// Standard input and output must be a terminal. All calls must come from one thread, which uses
// UTF-8 from then on, whatever the program's locale is.
//
// Esc and Ctrl-C cancel the question; Ctrl-D on an empty line ends the input. A line that begins
// with ";" is a comment.
class LineEditor : public AnswerReader
{
public:
    // Creates an editor on a screen [borrowed] that outlives it.
    explicit LineEditor(Screen& screen);
    ~LineEditor() override;
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    Answer next(const Question& question) override;
    bool visible() const override { return true; }

private:
    static LineEditor& of(EditLine* editLine);
    static char* promptOf(EditLine* editLine);
    static unsigned char onCancel(EditLine* editLine, wint_t key);
    static unsigned char onComplete(EditLine* editLine, wint_t key);
    static unsigned char onSuspend(EditLine* editLine, wint_t key);

    void bindKeys();
    Answer read();
    Answer unfinished();
    void remember(const char* line);

    Screen& m_screen;
    std::unique_ptr<EditLine, decltype(&el_end)> m_editLine;
    std::unique_ptr<History, decltype(&history_end)> m_history;
    std::string m_historyFile;
    std::string m_prompt;
    const Question* m_question = nullptr;
    std::optional<std::string> m_cancelled;  // the text to show after the question was cancelled
    bool m_ended = false;
};
}  // namespace host
