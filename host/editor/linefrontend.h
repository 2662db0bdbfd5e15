// A front end that reads lines: a script, a pipe or a terminal.
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
#include "host/basics/result.h"

namespace host
{
// Reads answers from a source.
class AnswerReader
{
public:
    virtual ~AnswerReader() = default;

    // Waits for the next answer. After the first endOfInput, every answer is endOfInput.
    virtual Answer next(const Question& question) = 0;
    // Makes a `next` that waits on another thread return an answer, which the caller ignores.
    // Returns false when the reader cannot do that.
    virtual bool endWait() { return false; }
    // Tells whether the user already sees the typed line, as at a terminal.
    virtual bool visible() const { return false; }
};

// A reader throws this exception when it cannot go on. what() returns the failure's line. The
// exception ends the program, because no caller waits for a result: see LineFrontEnd::serve.
struct UnreadableInput : std::runtime_error
{
    explicit UnreadableInput(const Failure& failure) : std::runtime_error(failure.line) {}
};

// Converts a line, in UTF-8 without its end, to an answer: an empty line is Enter, "^C" is Esc.
Answer answerOf(std::string_view line, bool visible);

// Reads one answer a line and drops a byte-order mark and carriage returns. A line that begins with
// ";" is a comment. The input is UTF-8, or UTF-16 behind its mark; UTF-16 is read to its end at
// once. Other bytes throw an UnreadableInput. Where a person types they are replaced instead,
// because a mistyped line should not end a session.
class LineReader : public AnswerReader
{
public:
    // The stream [borrowed] outlives the reader. From here on it throws its failures, because it
    // would otherwise report a failure as the end of the input. `name` is the stream's name in
    // messages.
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
    int m_number = 0;  // the line's number, from 1
};

// The functions through which a LineFrontEnd shows text. It calls one function at a time.
struct LineOutput
{
    std::function<void(std::string_view)> print;
    std::function<void(std::string_view)> report;
    // Shows the meter. May be empty: the meter is not shown then.
    std::function<void(const std::optional<Meter>&)> showMeter{};
};

// Passes the editor's questions to an AnswerReader on the thread that calls `serve`.
class LineFrontEnd : public FrontEnd
{
public:
    // Creates a front end for a reader [borrowed] that outlives it.
    LineFrontEnd(AnswerReader& reader, LineOutput output);

    void print(std::string_view text) override;
    void report(std::string_view line) override;
    void showMeter(const std::optional<Meter>& meter) override;
    Answer ask(const Question& question) override { return m_rendezvous.ask(question); }
    bool interactive() const override { return m_reader.visible(); }

    // Runs the job on a separate thread and answers its questions on the calling thread. Returns
    // after the job has ended. An exception of the reader ends the program: the job waits for an
    // answer and cannot be notified.
    void serve(const std::function<void()>& job);

private:
    Answer answerTo(const Question& question) noexcept { return m_reader.next(question); }

    AnswerReader& m_reader;
    LineOutput m_output;
    std::mutex m_printing;
    Rendezvous m_rendezvous;
};
}  // namespace host
