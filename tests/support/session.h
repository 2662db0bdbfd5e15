// A command line over a drawing, for tests.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "accmd.h"
#include "dbmain.h"
#include "host/documents/document.h"
#include "host/dxf/drawingfile.h"
#include "host/editor/frontend.h"

namespace support
{
// A front end that answers from a list, on the command's own thread. A line is what a user types:
// "" is Enter, "^C" is Esc. The input ends after the last line.
class Typist : public host::FrontEnd
{
public:
    void print(std::string_view text) override { transcript += text; }
    void report(std::string_view line) override { reports.emplace_back(line); }
    host::Answer ask(const host::Question& question) override;

    std::deque<std::string> lines;
    std::string transcript;
    std::vector<std::string> reports;
    std::vector<host::Question> questions;
};

// A drawing that is the current document while the session lives, with the host's commands
// registered. A command line exists only during type and run.
class Session
{
public:
    explicit Session(std::unique_ptr<AcDbDatabase> drawing = host::newDrawing());
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Registers a command of the group TEST, which is removed with the session.
    void define(const wchar_t* name, AcRxFunctionPtr function, int flags = ACRX_CMD_MODAL,
                HINSTANCE resources = nullptr);

    // Types the lines, beginning at the command prompt, and returns what was printed.
    std::string type(std::vector<std::string> lines);
    // Runs the body as a command with the lines as its answers; returns what was printed from the
    // start of the body to its end.
    std::string run(const std::function<void()>& body, std::vector<std::string> lines = {});

    host::Document& document() const;
    AcDbDatabase& drawing() const { return *document().database(); }

    bool trace = false;                     // print the meter's events
    bool endedInsideCommand = false;        // the last type or run had too few lines
    std::vector<std::string> reports;       // the reports of the last type or run
    std::vector<host::Question> questions;  // the questions of the last type or run
};
}  // namespace support
