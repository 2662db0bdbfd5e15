// Windows and controls: the part of Windows' user interface on which the dialog classes are built.
//
// Texts are Unicode. The comment of each function tells how it refuses a null or unknown window. No
// function throws. Positions and sizes are in pixels.
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

// Messages of any window. An edit sends EN_CHANGE when its text is set. The text of a drop-down
// list is that of the selected item and cannot be set.
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E

// Messages of dialogs. WM_INITDIALOG brings the control that will get the focus and the parameter
// of the call. WM_COMMAND brings id and code (MAKEWPARAM) and the control; its result is 0. If the
// procedure does not handle WM_CLOSE, the dialog sends WM_COMMAND with IDCANCEL, unless that button
// is disabled. DM_GETDEFID returns the id of the default button and DC_HASDEFID in the high word,
// or 0 if there is no default button. WM_NEXTDLGCTL with a control and TRUE gives the control the
// focus.
#define WM_CLOSE 0x0010
#define WM_INITDIALOG 0x0110
#define WM_COMMAND 0x0111
#define DM_GETDEFID 0x0400
#define WM_NEXTDLGCTL 0x0028
#define DC_HASDEFID 0x534B

// Messages of buttons. A click gives the focus, toggles an automatic check box, checks an automatic
// radio button and unchecks the others of its group, and then sends BN_CLICKED. A disabled button
// and a group box ignore clicks. BM_SETCHECK sends no notification and leaves the group unchanged.
// The style WS_TABSTOP of a radio button follows its check.
#define BM_GETCHECK 0x00F0
#define BM_SETCHECK 0x00F1
#define BM_CLICK 0x00F5
#define BST_UNCHECKED 0
#define BST_CHECKED 1
#define BN_CLICKED 0

// An edit sends EN_CHANGE when its text is set.
#define EN_CHANGE 0x0300

// Messages of combo boxes. wParam holds the position or data, lParam the text or data. The result
// is CB_ERR for a position that the list does not have. CB_SETCURSEL sends no notification; with -1
// or a position beyond the last it clears the selection and returns CB_ERR. CB_INSERTSTRING takes
// -1 for the end, and the list is not sorted. CB_FINDSTRINGEXACT ignores letter case and searches
// from the item after wParam to the end and on from the start; -1 begins at the first item.
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
    // Find and read the resources of one module, by type and name. A number stands for a name as
    // MAKEINTRESOURCEW gives it. Names ignore letter case. Return null if there is no such
    // resource. The bytes are [borrowed] from the module.
    HRSRC WINAPI FindResourceW(HMODULE module, LPCWSTR name, LPCWSTR type);
    DWORD WINAPI SizeofResource(HMODULE module, HRSRC resource);
    HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
    LPVOID WINAPI LockResource(HGLOBAL data);

    // Creates a dialog and its controls from a template (DLGTEMPLATEEX) and sends it WM_INITDIALOG
    // with `parameter`. If the answer is TRUE, the first control that can have the focus gets it.
    // Shows the dialog if the template says so. Returns null if the template is not a whole one of
    // a module's resources, contains an unknown class, or if the procedure destroyed the dialog.
    // The procedure receives WM_INITDIALOG, WM_COMMAND and WM_CLOSE; by returning FALSE it leaves
    // the message to the dialog itself. An owner that is not a window is ignored.
    HWND WINAPI CreateDialogIndirectParamW(HINSTANCE module, LPCDLGTEMPLATEW dialogTemplate,
                                           HWND owner, DLGPROC procedure, LPARAM parameter);
    // Destroys a window with its controls and the dialogs that it owns. Returns FALSE for a null or
    // unknown window.
    BOOL WINAPI DestroyWindow(HWND window);
    BOOL WINAPI IsWindow(HWND window);

    // Sends a message. Returns 0 for a null or unknown window and for a message that the window
    // does not know. The window may not exist afterwards.
    LRESULT WINAPI SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND WINAPI GetDlgItem(HWND dialog, int id);
    int WINAPI GetDlgCtrlID(HWND control);
    // Returns the dialog of a control or the owner of a dialog.
    HWND WINAPI GetParent(HWND window);
    // Returns the first control of a dialog (GW_CHILD) or the control after this one, in template
    // order (GW_HWNDNEXT).
    HWND WINAPI GetWindow(HWND window, UINT which);
    int WINAPI GetClassNameW(HWND window, LPWSTR name, int size);
    LONG WINAPI GetWindowLongW(HWND window, int what);
    // Returns FALSE for a null or unknown window. Without a screen, the client area of every dialog
    // begins at 0,0, a dialog has no frame, and a drop-down list has the height of its list.
    BOOL WINAPI GetWindowRect(HWND window, RECT* rectangle);

    // Returns FALSE for a window whose text cannot be set.
    BOOL WINAPI SetWindowTextW(HWND window, LPCWSTR text);
    // Copies the text, cut to the buffer. Returns its length without the final NUL.
    int WINAPI GetWindowTextW(HWND window, LPWSTR text, int size);
    int WINAPI GetWindowTextLengthW(HWND window);

    // Returns TRUE if the window was disabled before. A disabled window loses the focus.
    BOOL WINAPI EnableWindow(HWND window, BOOL enable);
    BOOL WINAPI IsWindowEnabled(HWND window);
    // Returns TRUE if the window was visible before.
    BOOL WINAPI ShowWindow(HWND window, int command);
    // Returns FALSE for a control of a hidden dialog, too.
    BOOL WINAPI IsWindowVisible(HWND window);
    // Returns the window that had the focus before. Returns null and changes nothing for a window
    // that is disabled or does not exist. A null window takes the focus away.
    HWND WINAPI SetFocus(HWND window);
    HWND WINAPI GetFocus();
    // Returns FALSE for a window that is disabled or does not exist. Without a screen, no window is
    // in front of another.
    BOOL WINAPI SetForegroundWindow(HWND window);
}
