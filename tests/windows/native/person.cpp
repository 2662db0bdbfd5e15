#include "tests/windows/native/person.h"

#include <chrono>
#include <utility>

namespace
{
void send(std::vector<INPUT> inputs)
{
    SendInput(UINT(inputs.size()), inputs.data(), sizeof(INPUT));
}

INPUT key(WORD code, DWORD flags = 0)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.dwFlags = flags;
    return input;
}

// The screen's width or height is 65536 of the mouse's units.
LONG inMouseUnits(LONG pixel, int size)
{
    return (pixel * 65536 + 32768) / size;
}

// Each event names the place: the screen's own pointer may move the mouse away in between.
INPUT mouseAt(HWND control, DWORD flags)
{
    RECT place = {};
    GetWindowRect(control, &place);
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = inMouseUnits((place.left + place.right) / 2, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = inMouseUnits((place.top + place.bottom) / 2, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | flags;
    return input;
}
}  // namespace

void press(WORD code)
{
    send({key(code), key(code, KEYEVENTF_KEYUP)});
}

void pressWithShift(WORD code)
{
    send({key(VK_SHIFT), key(code), key(code, KEYEVENTF_KEYUP), key(VK_SHIFT, KEYEVENTF_KEYUP)});
}

void moveTo(HWND control)
{
    send({mouseAt(control, 0)});
}

void clickOn(HWND control)
{
    send({mouseAt(control, 0), mouseAt(control, MOUSEEVENTF_LEFTDOWN),
          mouseAt(control, MOUSEEVENTF_LEFTUP)});
}

HWND focusAt(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

bool comesTrue(const std::function<bool()>& condition)
{
    for (int i = 0; i < 300; ++i)
    {
        if (condition())
        {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

Person::Person(Act act) : m_act(std::move(act)), m_thread([this] { sit(); }) {}

Person::~Person()
{
    m_rendezvous.finish();
    m_thread.join();
}

host::Answer Person::ask(const host::Question& question)
{
    ++asked;
    const host::Answer answer = m_rendezvous.ask(question);
    answers.push_back(answer.kind);
    return answer;
}

void Person::sit()
{
    while (const auto question = m_rendezvous.waitForQuestion())
    {
        m_rendezvous.answer(m_act(*question));
    }
}

HWND dialogOf(const host::Question& question)
{
    return FindWindowW(L"#32770", question.caption.c_str());
}
