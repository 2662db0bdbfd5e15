// A dialog that writes down what it is told.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/dialogtemplate.h"

struct Told
{
    UINT message;
    int id;    // of the control, for WM_COMMAND
    int code;  // likewise
    HWND control;

    bool operator==(const Told&) const = default;
};

class TestDialog
{
public:
    typedef std::function<INT_PTR(HWND dialog, UINT message, WPARAM wParam)> Answer;

    // The answer to every message; TRUE where there is none.
    explicit TestDialog(const support::TemplateBuilder& made, Answer answer = {},
                        HWND owner = nullptr);
    ~TestDialog();
    TestDialog(const TestDialog&) = delete;
    TestDialog& operator=(const TestDialog&) = delete;

    HWND control(int id) const;
    LRESULT send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT send(int id, UINT message, WPARAM wParam, LPCWSTR text) const;

    HWND window = nullptr;   // null when it was refused
    std::vector<Told> told;  // not WM_INITDIALOG
    WPARAM toldFocus = 0;    // by WM_INITDIALOG

private:
    static INT_PTR CALLBACK procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    Answer m_answer;
};

std::wstring textOf(HWND window);
