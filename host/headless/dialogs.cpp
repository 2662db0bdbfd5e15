#include "host/headless/dialogtemplate.h"
#include "host/headless/messages.h"
#include "host/headless/windowclasses.h"
#include "host/windows/emulated/moduleresources.h"

namespace host
{
namespace
{
INT_PTR ask(const Window& dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    return dialog.procedure != nullptr ? dialog.procedure(dialog.handle, message, wParam, lParam)
                                       : FALSE;
}

// Presses Cancel, unless that button is disabled: such a dialog does not close.
void pressCancel(HWND dialog)
{
    const HWND cancel = GetDlgItem(dialog, IDCANCEL);
    if (cancel == nullptr || IsWindowEnabled(cancel))
    {
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                     reinterpret_cast<LPARAM>(cancel));
    }
}

LRESULT defaultButton(const Window& dialog)
{
    for (const HWND control : controlsOf(dialog.handle))
    {
        const Window& window = *findWindow(control);
        if (isButton(window, BS_DEFPUSHBUTTON))
        {
            return LRESULT(MAKEWPARAM(window.id, DC_HASDEFID));
        }
    }
    return 0;
}

HWND firstToFocus(HWND dialog)
{
    for (const HWND control : controlsOf(dialog))
    {
        const Window& window = *findWindow(control);
        if (window.has(WS_TABSTOP | WS_VISIBLE) && window.isEnabled())
        {
            return control;
        }
    }
    return nullptr;
}

// Makes the windows of a dialog. The dialog stays hidden until it is initialised, so that the user
// never sees it half filled.
HWND makeWindows(DialogTemplate made, HWND owner, DLGPROC procedure)
{
    made.dialog.put(WS_VISIBLE, false);
    made.dialog.parent = IsWindow(owner) ? owner : nullptr;
    made.dialog.procedure = procedure;
    const HWND dialog = addWindow(made.dialog);
    for (Window& control : made.controls)
    {
        control.parent = dialog;
        addWindow(control);
    }
    return dialog;
}

// Initialises a dialog and sets the focus. The first control is searched for twice, because the
// procedure may have disabled the control that it received.
void initialise(HWND dialog, LPARAM parameter)
{
    const auto first = reinterpret_cast<WPARAM>(firstToFocus(dialog));
    const bool wantsFocus = SendMessageW(dialog, WM_INITDIALOG, first, parameter) != FALSE;
    const HWND now = firstToFocus(dialog);
    if (wantsFocus && now != nullptr)
    {
        SetFocus(now);
    }
}

// Sets the focus to a control that the message names. A move to the next or the previous control is
// not needed and does nothing.
void goTo(WPARAM control, LPARAM isControl)
{
    if (isControl != FALSE)
    {
        SetFocus(reinterpret_cast<HWND>(control));
    }
}
}  // namespace

LRESULT dialogMessage(Window& dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND handle = dialog.handle;
    switch (message)
    {
        case WM_INITDIALOG:
            return ask(dialog, message, wParam, lParam);
        case WM_COMMAND:
            ask(dialog, message, wParam, lParam);
            return 0;
        case WM_CLOSE:
            if (ask(dialog, message, wParam, lParam) == FALSE)
            {
                pressCancel(handle);
            }
            return 0;
        case DM_GETDEFID:
            return defaultButton(dialog);
        case WM_NEXTDLGCTL:
            goTo(wParam, lParam);
            return 0;
        default:
            return anyMessage(dialog, message, wParam, lParam);
    }
}
}  // namespace host

HWND CreateDialogIndirectParamW(HINSTANCE, LPCDLGTEMPLATEW dialogTemplate, HWND owner,
                                DLGPROC procedure, LPARAM parameter)
{
    const auto read = host::readDialogTemplate(host::resourceAt(dialogTemplate));
    if (!read)
    {
        return nullptr;
    }
    const HWND dialog = host::makeWindows(*read, owner, procedure);
    host::initialise(dialog, parameter);
    if (read->dialog.has(WS_VISIBLE))
    {
        ShowWindow(dialog, SW_SHOW);
    }
    return IsWindow(dialog) ? dialog : nullptr;
}
