#include <algorithm>

#include "host/headless/messages.h"
#include "host/headless/windowclasses.h"

namespace host
{
namespace
{
// Returns the controls of the button's group. A group begins at a control with WS_GROUP and ends
// before the next such control.
std::vector<HWND> groupOf(const Window& button)
{
    const std::vector<HWND> controls = controlsOf(button.parent);
    const auto startsGroup = [](HWND control) { return findWindow(control)->has(WS_GROUP); };
    const auto at = std::ranges::find(controls, button.handle);
    auto first = at;
    while (first != controls.begin() && !startsGroup(*first))
    {
        --first;
    }
    return {first, std::find_if(at + 1, controls.end(), startsGroup)};
}

// Checks or unchecks a button. The Tab key stops at the checked radio button of a group only.
void setCheck(Window& button, bool checked)
{
    if (isButton(button, BS_AUTORADIOBUTTON))
    {
        button.checked = checked;
        button.put(WS_TABSTOP, checked);
    }
    if (isButton(button, BS_AUTOCHECKBOX))
    {
        button.checked = checked;
    }
}

void checkAlone(const Window& radioButton)
{
    for (const HWND control : groupOf(radioButton))
    {
        Window& window = *findWindow(control);
        if (isButton(window, BS_AUTORADIOBUTTON))
        {
            setCheck(window, control == radioButton.handle);
        }
    }
}

void click(Window& button)
{
    if (!button.isEnabled() || isButton(button, BS_GROUPBOX))
    {
        return;
    }
    SetFocus(button.handle);
    if (isButton(button, BS_AUTOCHECKBOX))
    {
        setCheck(button, !button.checked);
    }
    if (isButton(button, BS_AUTORADIOBUTTON))
    {
        checkAlone(button);
    }
    notifyDialog(button, BN_CLICKED);
}
}  // namespace

LRESULT buttonMessage(Window& button, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
        case BM_CLICK:
            click(button);
            return 0;
        case BM_SETCHECK:
            setCheck(button, wParam != BST_UNCHECKED);
            return 0;
        case BM_GETCHECK:
            return button.checked ? BST_CHECKED : BST_UNCHECKED;
        default:
            return anyMessage(button, message, wParam, lParam);
    }
}
}  // namespace host
