#include "tests/headless/testdialog.h"

#include <map>

namespace
{
std::map<HWND, TestDialog*>& dialogs()
{
    static std::map<HWND, TestDialog*> all;
    return all;
}
}  // namespace

TestDialog::TestDialog(const support::TemplateBuilder& made, Answer answer, HWND owner)
    : m_answer(std::move(answer))
{
    const HINSTANCE module = support::newModule();
    const support::GivenResources given(
        module, support::ResourceFile().dialog(MAKEINTRESOURCEW(1), made.bytes()));
    const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), RT_DIALOG);
    window = CreateDialogIndirectParamW(module, LockResource(LoadResource(module, found)), owner,
                                        &procedure, reinterpret_cast<LPARAM>(this));
}

TestDialog::~TestDialog()
{
    DestroyWindow(window);
    std::erase_if(dialogs(), [this](const auto& entry) { return entry.second == this; });
}

INT_PTR TestDialog::procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        dialogs()[dialog] = reinterpret_cast<TestDialog*>(lParam);
        dialogs()[dialog]->toldFocus = wParam;
    }
    TestDialog& self = *dialogs().at(dialog);
    if (message == WM_COMMAND)
    {
        self.told.push_back(
            {message, LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam)});
    }
    else if (message != WM_INITDIALOG)
    {
        self.told.push_back({message, 0, 0, nullptr});
    }
    return self.m_answer ? self.m_answer(dialog, message, wParam) : TRUE;
}

HWND TestDialog::control(int id) const
{
    return GetDlgItem(window, id);
}

LRESULT TestDialog::send(int id, UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageW(control(id), message, wParam, lParam);
}

LRESULT TestDialog::send(int id, UINT message, WPARAM wParam, LPCWSTR text) const
{
    return send(id, message, wParam, reinterpret_cast<LPARAM>(text));
}

std::wstring textOf(HWND window)
{
    std::wstring text(std::size_t(GetWindowTextLengthW(window)) + 1, L'?');
    text.resize(std::size_t(GetWindowTextW(window, text.data(), int(text.size()))));
    return text;
}
