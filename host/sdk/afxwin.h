// MFC for an extension module: its place in the chain of modules that resources are looked up in,
// windows and dialogs.
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

// State of one extension module: a static object in it, begun as { NULL, NULL }.
struct AFX_EXTENSION_MODULE
{
    HMODULE hModule;    // null until AfxInitExtensionModule
    HMODULE hResource;  // where its resources are
};

// Order of calls: at the attach AfxInitExtensionModule, then `new CDynLinkLibrary`, then
// InitAcUiDLL; at the detach AfxTermExtensionModule.
//
// Makes the state ready with the handle that DllMain was given. FALSE for a null handle. A second
// call changes nothing.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
// Deletes the module's CDynLinkLibrary, so that the module leaves the chain, and sets the state
// back to { NULL, NULL }. A module that is unloaded without this call ends the run.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// A module's place in the chain, in front of the modules that joined before. It is made with new
// [adopted]; before AfxInitExtensionModule that ends the run.
class CDynLinkLibrary
{
public:
    // Joins the chain, and leaves it.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;    // the module
    HMODULE m_hResource;  // where its resources are

private:
    CDynLinkLibrary(const CDynLinkLibrary&);
    CDynLinkLibrary& operator=(const CDynLinkLibrary&);
};

// The module whose resources are looked at before the chain. It is the program itself to begin
// with; whoever sets another one sets the former one again.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);

// The module that holds a resource: AfxGetResourceHandle() first, then the chain from its newest
// module on. AfxGetResourceHandle() when there is no such resource.
HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

// An object that stands for a window, or is going to. The window is not destroyed with the object.
// Only FromHandle, Attach and Detach may be called before the object stands for a window; any other
// call ends the run.
class CWnd : public CCmdTarget
{
    DECLARE_MESSAGE_MAP()

public:
    CWnd();           // stands for no window
    virtual ~CWnd();  // detaches

    // The object that stands for the window [borrowed]. When there is none, a temporary object,
    // good until the dialog of the window goes. Null for a null window.
    static CWnd* FromHandle(HWND window);
    // Makes the object stand for the window; FALSE for a null one. It ends the run when the object
    // stands for a window already, or another object for this window. Detach gives up the window
    // and returns it; null when there was none.
    BOOL Attach(HWND window);
    HWND Detach();

    // The dialog's control with that id [borrowed]; null when there is none.
    CWnd* GetDlgItem(int id) const;

    // The text of the window or of one of its controls; it is copied. A control that is not there
    // has an empty text, and setting it does nothing.
    void SetWindowText(LPCWSTR text);
    void GetWindowText(CString& text) const;
    void SetDlgItemText(int id, LPCWSTR text);
    // Returns the length of the text.
    int GetDlgItemText(int id, CString& text) const;

    // A disabled window takes no click and no key. TRUE when it was disabled before.
    BOOL EnableWindow(BOOL enable = TRUE);
    // TRUE when it is enabled.
    BOOL IsWindowEnabled() const;
    // Shows or hides the window (SW_SHOW, SW_HIDE). TRUE when it was visible before.
    BOOL ShowWindow(int command);
    // TRUE when it and its dialog are visible.
    BOOL IsWindowVisible() const;

    // Sends a message of Windows to the window or to one of its controls and returns the answer, 0
    // for a control that is not there.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    // Checks or unchecks a check box or radio button (BST_CHECKED, BST_UNCHECKED), and tells which
    // it is. The dialog is not told of a change.
    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    // Checks one of the buttons with the ids from first to last and unchecks the others.
    void CheckRadioButton(int first, int last, int checked);

    // Runs DoDataExchange: with FALSE from the members to the controls, with TRUE the other way.
    // Returns TRUE.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    HWND m_hWnd;  // the window; null while the object stands for none

protected:
    // A dialog overrides it with one DDX_... call for each control; the base does nothing.
    virtual void DoDataExchange(CDataExchange* exchange);
    // Hands what a control tells (WM_COMMAND) to the message map. FALSE when the map has no handler
    // for it.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // Called when the object has come to stand for a window.
    virtual void PreSubclassWindow() {}

private:
    CWnd(const CWnd&);
    CWnd& operator=(const CWnd&);
};

// A push button, check box, radio button or group box.
class CButton : public CWnd
{
};

// A list that drops down. The calls send the control's own messages.
class CComboBox : public CWnd
{
public:
    // Positions count from 0, and CB_ERR (-1) means no item. GetCurSel is CB_ERR when nothing is
    // selected.
    int GetCount() const;
    int GetCurSel() const;
    // Selects an item and returns its position. -1 or a position beyond the last selects nothing
    // and returns CB_ERR. The dialog is not told.
    int SetCurSel(int index);
    // Add an item and return its position. AddString adds at the end, or in order in a list with
    // CBS_SORT; InsertString adds at `index`, and at the end for -1. The text is copied.
    int AddString(LPCWSTR text);
    int InsertString(int index, LPCWSTR text);
    // Takes an item away and returns how many are left; CB_ERR for a position that is not there.
    int DeleteString(UINT index);
    // Takes all items away.
    void ResetContent();
    // Position of the first item with just this text, in any case. The search begins behind the
    // item `after`, -1 for the start, and goes on from the start after the last item. CB_ERR for
    // none.
    int FindStringExact(int after, LPCWSTR text) const;
    // Text of an item; empty for a position that is not there.
    void GetLBText(int index, CString& text) const;
    // A number that the caller keeps with an item; 0 to begin with. CB_ERR for a position that is
    // not there.
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
};

// A modal dialog made from a template of the module's resources.
class CDialog : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    // The template is looked up when the dialog is shown. parent may be null [borrowed].
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    virtual ~CDialog();

    // Shows the dialog until it is ended and returns IDOK, IDCANCEL or what else EndDialog was
    // given; -1 when the template is missing or broken [prints]. The same object may be shown
    // again.
    virtual INT_PTR DoModal();
    // Ends the dialog once the handler that calls it has returned.
    void EndDialog(int result);
    // Gives the keyboard to the control, unless it is disabled; the text of an edit is marked.
    void GotoDlgCtrl(CWnd* control);

    // Called once the dialog and its controls are there, before it is shown. An override calls the
    // base first, which runs UpdateData(FALSE). TRUE gives the focus to the first control.
    virtual BOOL OnInitDialog();

protected:
    // The OK button and Enter without a default button. Runs UpdateData(TRUE) and ends the dialog
    // with IDOK. An override that does not call it leaves the dialog open.
    virtual void OnOK();
    // The Cancel button, Esc and the close box. Ends the dialog with IDCANCEL.
    virtual void OnCancel();

    friend struct DialogProcedure;

private:
    UINT m_templateId;
    CWnd* m_parent;
    INT_PTR m_result;
    bool m_ended;
};
