// Windows and controls: the part of Windows' user interface that the dialog classes stand on.
//
// Texts are Unicode. A null or unknown window is refused as each function says; no function throws.
// Positions and sizes are pixels.
#pragma once

#include "windows.h"

typedef struct HRSRC__* HRSRC;
typedef void* HGLOBAL;
typedef const void* LPCDLGTEMPLATEW;
typedef INT_PTR(CALLBACK* DLGPROC)(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

#define MAKEINTRESOURCEW(id) reinterpret_cast<LPCWSTR>(static_cast<UINT_PTR>(static_cast<WORD>(id)))
#define RT_BITMAP MAKEINTRESOURCEW(2)
#define RT_DIALOG MAKEINTRESOURCEW(5)
#define RT_STRING MAKEINTRESOURCEW(6)
#define RT_VERSION MAKEINTRESOURCEW(16)

#define LOWORD(value) static_cast<WORD>(static_cast<UINT_PTR>(value) & 0xFFFF)
#define HIWORD(value) static_cast<WORD>((static_cast<UINT_PTR>(value) >> 16) & 0xFFFF)
#define MAKEWPARAM(low, high)                    \
    static_cast<WPARAM>(static_cast<WORD>(low) | \
                        (static_cast<DWORD>(static_cast<WORD>(high)) << 16))

// Styles of any window.
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_VSCROLL 0x00200000
#define WS_SYSMENU 0x00080000
#define WS_GROUP 0x00020000  // the first control of a group
#define WS_TABSTOP 0x00010000
#define DS_SETFONT 0x40
#define DS_MODALFRAME 0x80

// Styles of the control classes "Button", "Static", "Edit" and "ComboBox".
#define BS_PUSHBUTTON 0x0
#define BS_DEFPUSHBUTTON 0x1
#define BS_AUTOCHECKBOX 0x3
#define BS_GROUPBOX 0x7
#define BS_AUTORADIOBUTTON 0x9
#define BS_OWNERDRAW 0xB
#define BS_TYPEMASK 0xF
#define SS_LEFT 0x0
#define SS_ETCHEDHORZ 0x10
#define SS_ETCHEDVERT 0x11
#define SS_ETCHEDFRAME 0x12
#define SS_TYPEMASK 0x1F
#define ES_AUTOHSCROLL 0x80
#define CBS_DROPDOWNLIST 0x3
#define CBS_OWNERDRAWFIXED 0x10
#define CBS_SORT 0x100
#define CBS_HASSTRINGS 0x200

// Messages of any window. An edit tells EN_CHANGE when its text is set; the text of a drop-down
// list is that of the selected item and cannot be set.
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E

// Messages of dialogs. WM_INITDIALOG brings the control that is going to have the focus and the
// parameter of the call. WM_COMMAND brings id and code (MAKEWPARAM) and the control; its result is
// 0. WM_CLOSE that the procedure leaves becomes WM_COMMAND with IDCANCEL unless that button is
// disabled. DM_GETDEFID: id of the default button and DC_HASDEFID in the high word; 0 for none.
// WM_NEXTDLGCTL with a control and TRUE: the control has the focus.
#define WM_CLOSE 0x0010
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define DM_GETDEFID 0x0400
#define WM_NEXTDLGCTL 0x0028
#define DC_HASDEFID 0x534B

// Messages of buttons. A click gives the focus, toggles an automatic check box, checks an automatic
// radio button and unchecks the others of its group, then tells BN_CLICKED; a disabled button and a
// group box do nothing. BM_SETCHECK tells nobody and leaves the group as it is; the style
// WS_TABSTOP of a radio button goes with its check.
#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_CLICK 0x00F5
#define BST_UNCHECKED 0
#define BST_CHECKED 1
#define BN_CLICKED 0

// An edit tells EN_CHANGE when its text is set.
#define EN_CHANGE 0x0300

// Messages of combo boxes, with position or data in wParam, text or data in lParam; CB_ERR for a
// position that the list does not have. CB_SETCURSEL tells nobody, and with -1 or a position beyond
// the last clears the selection and returns CB_ERR. CB_INSERTSTRING: -1 is the end, nothing is
// sorted. CB_FINDSTRINGEXACT: in any case, from the item after wParam on, round the end; -1 for the
// first.
#define CB_ADDSTRING 0x0143
#define CB_DELETESTRING 0x0144
#define CB_GETCOUNT 0x0146
#define CB_GETCURSEL 0x0147
#define CB_GETLBTEXT 0x0148
#define CB_GETLBTEXTLEN 0x0149
#define CB_INSERTSTRING 0x014A
#define CB_RESETCONTENT 0x014B
#define CB_SETCURSEL 0x014E
#define CB_GETITEMDATA 0x0150
#define CB_SETITEMDATA 0x0151
#define CB_FINDSTRINGEXACT 0x0158
#define CB_ERR (-1)
#define CBN_SELCHANGE 1

#define SW_HIDE 0
#define SW_SHOW 5
#define GW_HWNDNEXT 2
#define GW_CHILD 5
#define GWL_STYLE (-16)

extern "C"
{
    // Resources of one module, by type and name; a number stands for a name as MAKEINTRESOURCEW
    // gives it, names of letters are found in any case. Null for none. The bytes are the module's.
    HRSRC WINAPI FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type);
    DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);
    HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
    LPVOID WINAPI LockResource(HGLOBAL data);

    // Makes the dialog and its controls from a template (DLGTEMPLATEEX), sends it WM_INITDIALOG
    // with `parameter`, gives the focus to the first control that can have it if the answer is
    // TRUE, and shows the dialog if the template says so. Null when the template is no whole one of
    // a module's resources, when it has a class that is not known, and when the procedure has
    // destroyed the dialog. The procedure hears of WM_INITDIALOG, WM_COMMAND and WM_CLOSE; a FALSE
    // leaves the message to the dialog itself. An owner that is no window is none.
    HWND WINAPI CreateDialogIndirectParamW(HINSTANCE module, LPCDLGTEMPLATEW dialogTemplate,
                                           HWND owner, DLGPROC procedure, LPARAM parameter);
    // With its controls and the dialogs that it owns. FALSE for no window.
    BOOL WINAPI DestroyWindow(HWND window);
    BOOL WINAPI IsWindow(HWND window);

    // 0 for no window and for a message that the window does not know. The window may be gone
    // afterwards.
    LRESULT WINAPI SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND WINAPI GetDlgItem(HWND dialog, int id);
    int WINAPI GetDlgCtrlID(HWND control);
    // The dialog of a control, the owner of a dialog.
    HWND WINAPI GetParent(HWND window);
    // GW_CHILD: the first control of a dialog; GW_HWNDNEXT: the one after it, in template order.
    HWND WINAPI GetWindow(HWND window, UINT which);
    int WINAPI GetClassNameW(HWND window, LPWSTR name, int size);
    LONG WINAPI GetWindowLongW(HWND window, int what);
    // FALSE for no window. Without a screen the client area of every dialog begins at 0,0, it has
    // no frame, and a drop-down list has the height of its list.
    BOOL WINAPI GetWindowRect(HWND window, RECT* rectangle);

    // FALSE for a window whose text cannot be set.
    BOOL WINAPI SetWindowTextW(HWND window, LPCWSTR text);
    // Length of what was copied, cut to the buffer, without the final NUL.
    int WINAPI GetWindowTextW(HWND window, LPWSTR text, int size);
    int WINAPI GetWindowTextLengthW(HWND window);

    // TRUE when the window was disabled before. A disabled window loses the focus.
    BOOL WINAPI EnableWindow(HWND window, BOOL enable);
    BOOL WINAPI IsWindowEnabled(HWND window);
    // TRUE when the window was visible before.
    BOOL WINAPI ShowWindow(HWND window, int command);
    // FALSE for a control of a hidden dialog.
    BOOL WINAPI IsWindowVisible(HWND window);
    // The window that had the focus before. Null and no change for a window that is disabled or not
    // there; null takes the focus away.
    HWND WINAPI SetFocus(HWND window);
    HWND WINAPI GetFocus();
    // Nothing is in front of anything here. FALSE for a window that is disabled or not there.
    BOOL WINAPI SetForegroundWindow(HWND window);
}
