// A person who works the windows with a mouse and a keyboard while a console waits for a line.
#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "host/editor/rendezvous.h"
#include "windows.h"

// Real keys and clicks, as if they came from the hardware.
void press(WORD key);
void pressWithShift(WORD key);
void moveTo(HWND control);
void clickOn(HWND control);

// The control that has the keyboard in the thread of the window; null for none.
HWND focusAt(HWND window);

// Whether it came true within some seconds.
bool comesTrue(const std::function<bool()>& condition);

// Answers each question on a thread of its own, with what `act` brings from the console; a click
// that `act` makes may withdraw the question meanwhile.
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

    std::atomic<int> asked = 0;  // questions of the command
    std::string transcript;
    std::vector<host::Answer::Kind> answers;  // as the command was given them

private:
    void sit();

    Act m_act;
    host::Rendezvous m_rendezvous;
    std::thread m_thread;
};

// The dialog that a question is about.
HWND dialogOf(const host::Question& question);
