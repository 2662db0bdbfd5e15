// A dialog that records the messages that it receives.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/dialogtemplate.h"

struct Told
{
    UINT message;
    int id;    // the id of the control, for WM_COMMAND
    int code;  // the notification code, for WM_COMMAND
    HWND control;

    bool operator==(const Told&) const = default;
};

class TestDialog
{
public:
    typedef std::function<INT_PTR(HWND dialog, UINT message, WPARAM wParam)> Answer;

    // Creates a dialog that answers every message with `answer`, or with TRUE without one.
    explicit TestDialog(const support::TemplateBuilder& made, Answer answer = {},
                        HWND owner = nullptr);
    ~TestDialog();
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    HWND control(int id) const;
    LRESULT send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT send(int id, UINT message, WPARAM wParam, LPCWSTR text) const;

    HWND window = nullptr;   // null when the system refused the template
    std::vector<Told> told;  // the messages except WM_INITDIALOG
    WPARAM toldFocus = 0;    // the control that WM_INITDIALOG named

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    Answer m_answer;
};

std::wstring textOf(HWND window);
