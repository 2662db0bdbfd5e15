// Simulates a person who uses windows with a mouse and a keyboard while a console waits for a line.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "host/editor/rendezvous.h"
#include "windows.h"

// Send keys and clicks as if they came from the hardware.
void press(WORD key);
void pressWithShift(WORD key);
void moveTo(HWND control);
void clickOn(HWND control);

// Returns the control that has the focus in the window's thread, or null.
HWND focusAt(HWND window);

// Waits some seconds and tells whether the condition became true.
bool comesTrue(const std::function<bool()>& condition);

// Answers each question on a separate thread with what `act` returns from the console. A click that
// `act` makes may withdraw the question meanwhile.
class Person : public host::FrontEnd
{
public:
    using Act = std::function<host::Answer(const host::Question&)>;

    explicit Person(Act act);
    ~Person();

    void print(std::string_view text) override { transcript += text; }
    void report(std::string_view line) override { transcript += line; }
    host::Answer ask(const host::Question& question) override;
    bool interactive() const override { return true; }

    std::atomic<int> asked = 0;  // the number of questions of the command
    std::string transcript;
    std::vector<host::Answer::Kind> answers;  // the answers that the command received

private:
    void sit();

    Act m_act;
    host::Rendezvous m_rendezvous;
    std::thread m_thread;
};

// The dialog that a question is about.
HWND dialogOf(const host::Question& question);
