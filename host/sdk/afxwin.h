// The part of MFC that an extension module uses: its place in the chain of modules that resources
// are looked up in, windows and dialogs.
#pragma once

#include <cstdio>
#include <cstdlib>

#include "windows.h"
#include "winuser.h"
#include "commctrl.h"
#include "tchar.h"
#include "afxstr.h"
#include "afxmsg_.h"
#include "afxdd_.h"

// The state of one extension module: a static object in the module, initialised with { NULL, NULL
// }.
struct AFX_EXTENSION_MODULE
{
    HMODULE hModule;    // null until AfxInitExtensionModule
    HMODULE hResource;  // the module that holds its resources
};

// Order of calls: when the module is attached, AfxInitExtensionModule, then `new CDynLinkLibrary`,
// then InitAcUiDLL; when it is detached, AfxTermExtensionModule.
//
// Initialises the state with the handle that DllMain received. Returns FALSE for a null handle. A
// second call changes nothing.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
// Deletes the module's CDynLinkLibrary, so that the module leaves the chain, and resets the state
// to { NULL, NULL }. A module that is unloaded without this call ends the run.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// A module's place in the chain, in front of the modules that joined before. The module creates it
// with new, and the host takes it over [adopted]. Creating it before AfxInitExtensionModule ends
// the run.
class CDynLinkLibrary
{
public:
    // The constructor adds the module to the chain, and the destructor removes it.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;    // the module
    HMODULE m_hResource;  // the module that holds its resources

private:
    CDynLinkLibrary(const CDynLinkLibrary&);
    CDynLinkLibrary& operator=(const CDynLinkLibrary&);
};

// Return and set the module whose resources are searched before the chain. At first it is the
// program itself. A caller that sets another module restores the former one.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);

// Returns the module that holds a resource. Searches AfxGetResourceHandle() first and then the
// chain from its newest module on. Returns AfxGetResourceHandle() when no module has the resource.
HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

// An object that is attached to a window or will be. The window is not destroyed with the object.
// Only FromHandle, Attach and Detach may be called while the object is not attached; any other call
// ends the run.
class CWnd : public CCmdTarget
{
    DECLARE_MESSAGE_MAP()

public:
    CWnd();           // is attached to no window
    virtual ~CWnd();  // detaches

    // Returns the object that is attached to the window [borrowed]. When the window has no object,
    // returns a temporary one, which is good until the window's dialog is destroyed. Returns null
    // for a null window.
    static CWnd* FromHandle(HWND window);
    // Attach attaches the object to the window and returns FALSE for a null window. It ends the run
    // when the object is attached to a window already, or when the window has another object.
    // Detach gives up the window and returns it, or null when the object was not attached.
    BOOL Attach(HWND window);
    HWND Detach();

    // Returns the dialog's control with that id [borrowed], good until the dialog is destroyed.
    // Returns null when the dialog has no such control.
    CWnd* GetDlgItem(int id) const;

    // Set and return the text of the window or of one of its controls; it is copied. A control that
    // does not exist has an empty text, and setting its text does nothing.
    void SetWindowText(LPCWSTR text);
    void GetWindowText(CString& text) const;
    void SetDlgItemText(int id, LPCWSTR text);
    // Returns the length of the text.
    int GetDlgItemText(int id, CString& text) const;

    // Enables or disables the window. A disabled window ignores clicks and keys. Returns TRUE when
    // the window was disabled before.
    BOOL EnableWindow(BOOL enable = TRUE);
    // Tells whether the window is enabled.
    BOOL IsWindowEnabled() const;
    // Shows or hides the window (SW_SHOW, SW_HIDE). Returns TRUE when the window was visible
    // before.
    BOOL ShowWindow(int command);
    // Tells whether the window and its dialog are visible.
    BOOL IsWindowVisible() const;

    // Send a message of Windows to the window or to one of its controls and return the answer, or 0
    // for a control that does not exist.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // Check or uncheck a check box or radio button (BST_CHECKED, BST_UNCHECKED), and return its
    // state. The dialog is not notified of the change.
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    // Checks one of the buttons with the ids from first to last and unchecks the others.
    void CheckRadioButton(int first, int last, int checked);

    // Runs DoDataExchange, with FALSE from the members to the controls and with TRUE in the other
    // direction. Returns TRUE.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    HWND m_hWnd;  // the window; null while the object is not attached

protected:
    // Exchanges values. A dialog overrides it with one DDX_... call for each control; the base
    // class does nothing.
    virtual void DoDataExchange(CDataExchange* exchange);
    // Passes a control's notification (WM_COMMAND) to the message map. Returns FALSE when the map
    // has no handler for it.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // Called after the object has been attached to a window.
    virtual void PreSubclassWindow() {}

private:
    CWnd(const CWnd&);
    CWnd& operator=(const CWnd&);
};

// A push button, check box, radio button or group box.
class CButton : public CWnd
{
};

// A drop-down list. The calls send the control's own messages.
class CComboBox : public CWnd
{
public:
    // Return the number of items and the position of the selected one. Positions count from 0;
    // CB_ERR (-1) means no item. GetCurSel returns CB_ERR when no item is selected.
    int GetCount() const;
    int GetCurSel() const;
    // Selects an item and returns its position. -1 or a position beyond the last item selects no
    // item and returns CB_ERR. The dialog is not notified.
    int SetCurSel(int index);
    // Add an item and return its position. AddString adds at the end, or in order in a list with
    // CBS_SORT; InsertString adds at `index`, and at the end for -1. The text is copied.
    int AddString(LPCWSTR text);
    int InsertString(int index, LPCWSTR text);
    // Removes an item and returns the number of remaining items, or CB_ERR for a position that does
    // not exist.
    int DeleteString(UINT index);
    // Removes all items.
    void ResetContent();
    // Returns the position of the first item that has exactly this text in any letter case. The
    // search begins behind the item `after`, or at the start for -1, and continues from the start
    // after the last item. Returns CB_ERR when no item matches.
    int FindStringExact(int after, LPCWSTR text) const;
    // Sets text to that of an item, or to an empty text for a position that does not exist.
    void GetLBText(int index, CString& text) const;
    // Return and set the number that the caller keeps with an item; it is 0 at first. They return
    // CB_ERR for a position that does not exist.
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
};

// A modal dialog that is created from a template of the module's resources.
class CDialog : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    // Creates a dialog object. The template is looked up when the dialog is shown. parent may be
    // null [borrowed].
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    virtual ~CDialog();

    // Shows the dialog until it is ended. Returns the argument of EndDialog, normally IDOK or
    // IDCANCEL, or -1 when the template is missing or broken [prints]. The same object may be shown
    // again.
    virtual INT_PTR DoModal();
    // Ends the dialog after the handler that calls this function has returned.
    void EndDialog(int result);
    // Gives the focus to the control unless it is disabled. The text of an edit control is
    // selected.
    void GotoDlgCtrl(CWnd* control);

    // Called after the dialog and its controls have been created, before the dialog is shown. An
    // override calls the base first, which runs UpdateData(FALSE). The result TRUE gives the focus
    // to the first control.
    virtual BOOL OnInitDialog();

protected:
    // Handles the OK button, and Enter when the dialog has no default button. Runs UpdateData(TRUE)
    // and ends the dialog with IDOK. An override that does not call it leaves the dialog open.
    virtual void OnOK();
    // Handles the Cancel button, Esc and the close box. Ends the dialog with IDCANCEL.
    virtual void OnCancel();

    friend struct DialogProcedure;

private:
    UINT m_templateId;
    CWnd* m_parent;
    INT_PTR m_result;
    bool m_ended;
};
