// A front end of lines: a script, a pipe or a terminal.
#pragma once

#include <functional>
#include <istream>

#include "host/editor/rendezvous.h"

namespace host
{
// Reads one answer a line. UTF-8, a byte-order mark and carriage returns are dropped; a line that
// begins with ";" is a comment, an empty one is Enter, "^C" is Esc.
class LineReader
{
public:
    // visible: whoever types sees the line already, as at a terminal.
    LineReader(std::istream& input, bool visible) : m_input(input), m_visible(visible) {}

    Answer next();
    bool visible() const { return m_visible; }

private:
    bool read(std::string& line);

    std::istream& m_input;
    bool m_visible;
    bool m_first = true;
};

// Prints through two functions that it calls one at a time, answers from a reader.
class LineFrontEnd : public FrontEnd
{
public:
    using Writer = std::function<void(std::string_view)>;

    LineFrontEnd(LineReader& reader, Writer print, Writer report);

    void print(std::string_view text) override;
    void report(std::string_view line) override;
    Answer ask(const Question& question) override { return m_rendezvous.ask(question); }
    bool interactive() const override { return m_reader.visible(); }

    // Runs the job on a thread of its own and answers its questions on the calling one.
    void serve(const std::function<void()>& job);

private:
    LineReader& m_reader;
    Writer m_print;
    Writer m_report;
    std::mutex m_printing;
    Rendezvous m_rendezvous;
};
}  // namespace host
