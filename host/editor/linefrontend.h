// A front end of lines: a script, a pipe or a terminal.
#pragma once

#include <functional>
#include <istream>
#include <mutex>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/editor/rendezvous.h"
#include "host/runtime/result.h"

namespace host
{
// Where the answers come from.
class AnswerReader
{
public:
    virtual ~AnswerReader() = default;

    // After the end of the input it gives nothing else.
    virtual Answer next(const Question& question) = 0;
    // Makes a `next` that waits on another thread give an answer that does not count. False where
    // that cannot be done.
    virtual bool endWait() { return false; }
    // Whoever types sees the line already, as at a terminal.
    virtual bool visible() const { return false; }
};

// Thrown by a reader that cannot go on; what() is the failure's line. It ends the program, as
// nobody waits for a result: see LineFrontEnd::serve.
struct UnreadableInput : std::runtime_error
{
    explicit UnreadableInput(const Failure& failure) : std::runtime_error(failure.line) {}
};

// What a line says, UTF-8 without its end: an empty one is Enter, "^C" is Esc.
Answer answerOf(std::string_view line, bool visible);

// Reads one answer a line. A byte-order mark and carriage returns are dropped; a line that begins
// with ";" is a comment. UTF-8, or UTF-16 behind its mark, which is read to its end at once. Other
// bytes throw an UnreadableInput, but are replaced where a person types: that is no reason to end.
class LineReader : public AnswerReader
{
public:
    // From here on the stream throws what goes wrong with it: it would take that for its end.
    LineReader(std::istream& input, bool visible, std::string name = "standard input");

    Answer next(const Question& question) override;
    bool visible() const override { return m_visible; }

private:
    void begin();
    bool read(std::string& line);
    bool readBytes(std::string& line);

    std::istream* m_input;
    std::istringstream m_converted;
    bool m_visible;
    std::string m_name;
    int m_number = 0;  // of the line
};

// How a front end of lines shows things. It calls one function at a time.
struct LineOutput
{
    std::function<void(std::string_view)> print;
    std::function<void(std::string_view)> report;
    // Left out: the meter is not shown.
    std::function<void(const std::optional<Meter>&)> showMeter{};
};

class LineFrontEnd : public FrontEnd
{
public:
    LineFrontEnd(AnswerReader& reader, LineOutput output);

    void print(std::string_view text) override;
    void report(std::string_view line) override;
    void showMeter(const std::optional<Meter>& meter) override;
    Answer ask(const Question& question) override { return m_rendezvous.ask(question); }
    bool interactive() const override { return m_reader.visible(); }

    // Runs the job on a thread of its own and answers its questions on the calling one. What the
    // reader throws ends the program: the job waits for an answer and cannot be told.
    void serve(const std::function<void()>& job);

private:
    Answer answerTo(const Question& question) noexcept { return m_reader.next(question); }

    AnswerReader& m_reader;
    LineOutput m_output;
    std::mutex m_printing;
    Rendezvous m_rendezvous;
};
}  // namespace host
