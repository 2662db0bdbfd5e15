#include "host/windows/messagebox.h"

#include <utility>

#include "windows.h"

namespace host
{
namespace
{
struct Answering
{
    MessageBoxHandler handler;
    HHOOK hook = nullptr;
    HWND box = nullptr;  // the open box, which has been handled already
};

// Each thread may show a box, so each has a separate state.
thread_local Answering s_answering;

std::wstring textOf(HWND window)
{
    std::wstring text(GetWindowTextLengthW(window), L'\0');
    GetWindowTextW(window, text.data(), int(text.size()) + 1);
    return text;
}

// Returns the longest text on the box. The picture beside it has no text.
std::wstring messageOf(HWND box)
{
    std::wstring longest;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
    {
        wchar_t name[16] = L"";
        GetClassNameW(child, name, 16);
        std::wstring text = lstrcmpiW(name, L"Static") == 0 ? textOf(child) : std::wstring();
        if (text.size() > longest.size())
        {
            longest = std::move(text);
        }
    }
    return longest;
}

bool isDefault(HWND button)
{
    return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

unsigned typeOf(HWND box)
{
    const bool cancels = GetDlgItem(box, IDCANCEL) != nullptr;
    const bool asks = GetDlgItem(box, IDYES) != nullptr;
    const unsigned buttons = asks      ? (cancels ? MB_YESNOCANCEL : MB_YESNO)
                             : cancels ? MB_OKCANCEL
                                       : MB_OK;
    const bool isSecond = isDefault(GetDlgItem(box, asks ? IDNO : IDCANCEL));
    return buttons | (isSecond && buttons != MB_OK ? MB_DEFBUTTON2 : 0);
}

// Returns true if the box has only an OK button. Windows gives this button the number of Cancel, so
// that Esc presses it.
bool isLoneButton(HWND box)
{
    return GetDlgItem(box, IDOK) == nullptr && GetDlgItem(box, IDYES) == nullptr;
}

// Returns true if a button was clicked. The box is then hidden at once, and destroyed when all the
// calls that it made have returned.
bool isClosed(HWND box)
{
    return s_answering.box != box || !IsWindowVisible(box);
}

void CALLBACK answer(HWND box, UINT, UINT_PTR timer, DWORD)
{
    if (!IsWindowVisible(box))
    {
        return;  // the box is not shown yet: the timer comes again
    }
    KillTimer(box, timer);
    const bool isLone = isLoneButton(box);
    const int button = s_answering.handler({.text = messageOf(box),
                                            .caption = textOf(box),
                                            .type = isLone ? MB_OK : typeOf(box),
                                            .isGone = [box] { return isClosed(box); }});
    if (button != 0)
    {
        SendMessageW(box, WM_COMMAND, isLone ? IDCANCEL : button, 0);
    }
}

// A message box contains only texts, a picture and buttons.
bool isPartOfBox(HWND child)
{
    wchar_t name[16] = L"";
    GetClassNameW(child, name, 16);
    const int id = GetDlgCtrlID(child);
    return lstrcmpiW(name, L"Static") == 0 ||
           (lstrcmpiW(name, L"Button") == 0 && id >= IDOK && id <= IDNO);
}

bool isBox(HWND window)
{
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    HWND child = GetWindow(window, GW_CHILD);
    bool is = child != nullptr && lstrcmpW(name, L"#32770") == 0;
    for (; is && child; child = GetWindow(child, GW_HWNDNEXT))
    {
        is = isPartOfBox(child);
    }
    return is;
}

LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam)
{
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && window != s_answering.box && isBox(window))
    {
        s_answering.box = window;
        SetTimer(window, 1, USER_TIMER_MINIMUM, answer);
    }
    if (code == HCBT_DESTROYWND && window == s_answering.box)
    {
        s_answering.box = nullptr;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// Returns the topmost dialog of the thread.
BOOL CALLBACK findDialog(HWND window, LPARAM found)
{
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    const bool isDialog = IsWindowVisible(window) && lstrcmpW(name, L"#32770") == 0;
    *reinterpret_cast<HWND*>(found) = isDialog ? window : nullptr;
    return !isDialog;
}
}  // namespace

bool alertOverDialog(const std::wstring& text)
{
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), findDialog, reinterpret_cast<LPARAM>(&dialog));
    return dialog != nullptr &&
           MessageBoxW(dialog, text.c_str(), L"arxhost", MB_OK | MB_ICONWARNING) != 0;
}

void setMessageBoxHandler(MessageBoxHandler handler)
{
    s_answering.handler = std::move(handler);
    if (s_answering.hook != nullptr)
    {
        UnhookWindowsHookEx(std::exchange(s_answering.hook, nullptr));
    }
    if (s_answering.handler)
    {
        s_answering.hook = SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId());
    }
}
}  // namespace host
