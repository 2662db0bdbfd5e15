#include "host/program/terminal/lineeditor.h"

#include <locale.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "host/program/terminal/completion.h"
#include "host/program/terminal/historyfile.h"
#include "host/program/terminal/keys.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
const int rememberedLines = 500;
const char unseen = '\1';  // encloses sequences that take no room on the line

EditLine* openTerminal()
{
    // The locale changes for this thread only, because a command must keep its own locale.
    uselocale(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr));
    return el_init("arxhost", stdin, stdout, stderr);
}

bool colored()
{
    const char* const refused = std::getenv("NO_COLOR");
    return refused == nullptr || *refused == '\0';
}

// Makes a change of the window's size interrupt the wait for a key, which then reads the new size.
void noticeResizing()
{
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    sigaction(SIGWINCH, &action, nullptr);
}

// Dims the prompt except for its last letter, usually a blank, because the library does not show an
// escape sequence at the end of a prompt.
std::string dimmed(const std::string& prompt)
{
    const std::size_t last = prompt.size() - 1;
    const bool plain = prompt.size() < 2 || (prompt[last] & 0x80) != 0;
    if (plain || !colored())
    {
        return prompt;
    }
    return unseen + std::string("\x1b[2m") + unseen + prompt.substr(0, last) + unseen + "\x1b[0m" +
           unseen + prompt.substr(last);
}

// Returns the text from the cursor to the end of its word, or to the end of a file's name.
std::wstring restOfWord(const LineInfo& line, Question::Kind kind)
{
    const std::wstring behind = fromUtf8(std::string_view(line.cursor, line.lastchar));
    return kind == Question::Kind::file ? behind : behind.substr(0, behind.find(L' '));
}

void list(const std::vector<std::wstring>& choices)
{
    std::string line = "\n";
    for (const std::wstring& choice : choices)
    {
        line += toUtf8(choice) + "  ";
    }
    std::fprintf(stdout, "%s\n", line.c_str());
}
}  // namespace

LineEditor::LineEditor(Screen& screen)
    : m_screen(screen),
      m_editLine(openTerminal(), el_end),
      m_history(history_init(), history_end),
      m_historyFile(historyFile())
{
    HistEvent event;
    history(m_history.get(), &event, H_SETSIZE, rememberedLines);
    history(m_history.get(), &event, H_SETUNIQUE, 1);
    history(m_history.get(), &event, H_LOAD, m_historyFile.c_str());
    bindKeys();
    noticeResizing();
}

// Saves the history. A failure is not reported, because the history is only a convenience.
LineEditor::~LineEditor()
{
    HistEvent event;
    history(m_history.get(), &event, H_SAVE, m_historyFile.c_str());
}

void LineEditor::bindKeys()
{
    EditLine* const editLine = m_editLine.get();
    el_set(editLine, EL_CLIENTDATA, this);
    el_set(editLine, EL_PROMPT_ESC, promptOf, unseen);
    el_set(editLine, EL_HIST, history, m_history.get());
    el_set(editLine, EL_GETCFN, readKey);
    el_set(editLine, EL_EDITOR, "emacs");
    // While a line is edited, Ctrl-C and Ctrl-Z arrive as keys and send no signals.
    el_set(editLine, EL_SETTY, "-d", "-isig", nullptr);
    el_set(editLine, EL_ADDFN, "cancel", "Cancel the question", onCancel);
    el_set(editLine, EL_ADDFN, "complete", "Complete a name", onComplete);
    el_set(editLine, EL_ADDFN, "suspend", "Give the terminal back to the shell", onSuspend);
    el_set(editLine, EL_BIND, "^C", "cancel", nullptr);
    el_set(editLine, EL_BIND, "^Z", "suspend", nullptr);
    el_set(editLine, EL_BIND, "^I", "complete", nullptr);
    el_set(editLine, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    el_set(editLine, EL_BIND, "\\e[3~", "ed-delete-next-char", nullptr);
}

LineEditor& LineEditor::of(EditLine* editLine)
{
    void* editor = nullptr;
    el_get(editLine, EL_CLIENTDATA, &editor);
    return *static_cast<LineEditor*>(editor);
}

char* LineEditor::promptOf(EditLine* editLine)
{
    return of(editLine).m_prompt.data();
}

unsigned char LineEditor::onCancel(EditLine* editLine, wint_t)
{
    const LineInfo* const line = el_line(editLine);
    // Showing the text behind the cursor once more moves the cursor to the end.
    of(editLine).m_cancelled = std::string(line->cursor, line->lastchar) + "^C\n";
    return CC_EOF;
}

unsigned char LineEditor::onComplete(EditLine* editLine, wint_t)
{
    const Question& question = *of(editLine).m_question;
    const LineInfo* const line = el_line(editLine);
    const std::wstring before = fromUtf8(std::string_view(line->buffer, line->cursor));
    const std::wstring rest = restOfWord(*line, question.kind);
    const Completion found = complete(question, before + rest);
    if (found.text.empty() && found.choices.empty())
    {
        return CC_REFRESH_BEEP;
    }
    el_cursor(editLine, int(rest.size()));
    el_deletestr(editLine, int(found.replaced));
    el_insertstr(editLine, toUtf8(found.text).c_str());
    if (found.choices.empty())
    {
        return CC_REFRESH;
    }
    list(found.choices);
    return CC_REDISPLAY;
}

unsigned char LineEditor::onSuspend(EditLine* editLine, wint_t)
{
    el_set(editLine, EL_PREP_TERM, 0);
    kill(0, SIGTSTP);  // stops the shell's whole job, which continues from here later
    el_set(editLine, EL_PREP_TERM, 1);
    return CC_REDISPLAY;
}

Answer LineEditor::next(const Question& question)
{
    if (m_ended)
    {
        return {.kind = Answer::Kind::endOfInput};
    }
    m_question = &question;
    m_prompt = dimmed(m_screen.takePrompt());
    return read();
}

Answer LineEditor::read()
{
    std::string_view line;
    do
    {
        m_cancelled.reset();
        // Set before the prompt shows, so that a key pressed at once already arrives as a key.
        el_set(m_editLine.get(), EL_PREP_TERM, 1);
        int length = 0;
        const char* const typed = el_gets(m_editLine.get(), &length);
        if (typed == nullptr || length <= 0)
        {
            return unfinished();
        }
        line = std::string_view(typed, std::size_t(length));
        line.remove_suffix(line.ends_with('\n'));
    } while (line.starts_with(';'));
    m_screen.promptEnded(true);
    remember(std::string(line).c_str());
    return answerOf(line, true);
}

Answer LineEditor::unfinished()
{
    m_screen.promptEnded(m_cancelled.has_value());
    if (!m_cancelled)
    {
        m_ended = true;
        return {.kind = Answer::Kind::endOfInput};
    }
    std::fputs(m_cancelled->c_str(), stdout);
    std::fflush(stdout);
    return {.kind = Answer::Kind::cancel, .visible = true};
}

void LineEditor::remember(const char* line)
{
    if (*line != '\0')
    {
        HistEvent event;
        history(m_history.get(), &event, H_ENTER, line);
    }
}
}  // namespace host
