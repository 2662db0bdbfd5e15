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

// State of one extension module, static in it and begun as { NULL, NULL }.
struct AFX_EXTENSION_MODULE
{
    HMODULE hModule;    // null until AfxInitExtensionModule
    HMODULE hResource;  // where its resources are
};

// Makes the state ready; FALSE for a null handle. A second call changes nothing.
BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module);
// Deletes the module's CDynLinkLibrary and makes the state as it was in the beginning.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state);

// A module's place in the chain. Made with new after AfxInitExtensionModule [adopted].
class CDynLinkLibrary
{
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    virtual ~CDynLinkLibrary();

    HMODULE m_hModule;
    HMODULE m_hResource;

private:
    CDynLinkLibrary(const CDynLinkLibrary&);
    CDynLinkLibrary& operator=(const CDynLinkLibrary&);
};

// The module whose resources are looked at before the chain; the program itself to begin with.
HINSTANCE AfxGetResourceHandle();
void AfxSetResourceHandle(HINSTANCE module);

// The first module in the order of look-up that has the resource; AfxGetResourceHandle() for none.
HINSTANCE AfxFindResourceHandle(LPCWSTR name, LPCWSTR type);

// A window, or an object that is going to stand for one. The window is not destroyed with it.
class CWnd : public CCmdTarget
{
    DECLARE_MESSAGE_MAP()

public:
    CWnd();
    virtual ~CWnd();

    // The object that stands for the window; without one a temporary object, good until the dialog
    // of the window goes [borrowed]. Null for null.
    static CWnd* FromHandle(HWND window);
    // From now on the object stands for the window; FALSE for none. A breach when it stands for a
    // window already, or another object for this one.
    BOOL Attach(HWND window);
    HWND Detach();

    // Null for a control that is not there [borrowed].
    CWnd* GetDlgItem(int id) const;

    void SetWindowText(LPCWSTR text);
    void GetWindowText(CString& text) const;
    void SetDlgItemText(int id, LPCWSTR text);
    // Length of the text.
    int GetDlgItemText(int id, CString& text) const;

    // TRUE when it was disabled before.
    BOOL EnableWindow(BOOL enable = TRUE);
    BOOL IsWindowEnabled() const;
    // TRUE when it was visible before.
    BOOL ShowWindow(int command);
    BOOL IsWindowVisible() const;

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

    void CheckDlgButton(int id, UINT check);
    UINT IsDlgButtonChecked(int id) const;
    // Checks one of the buttons from first to last and unchecks the others.
    void CheckRadioButton(int first, int last, int checked);

    // FALSE: from the members to the controls; TRUE: back.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);

    HWND m_hWnd;

protected:
    virtual void DoDataExchange(CDataExchange* exchange);
    // What a control tells, as WM_COMMAND brings it; FALSE when the message map knows no answer.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // Called when the object has come to stand for a window.
    virtual void PreSubclassWindow() {}

private:
    CWnd(const CWnd&);
    CWnd& operator=(const CWnd&);
};

class CButton : public CWnd
{
};

class CComboBox : public CWnd
{
public:
    // Positions count from 0; CB_ERR for none.
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int index);  // -1 or a position beyond the last: nothing is selected, CB_ERR
    int AddString(LPCWSTR text);
    int InsertString(int index, LPCWSTR text);
    int DeleteString(UINT index);
    void ResetContent();
    // The first with just this text, in any case, after `after`, round the end.
    int FindStringExact(int after, LPCWSTR text) const;
    void GetLBText(int index, CString& text) const;
    DWORD_PTR GetItemData(int index) const;
    int SetItemData(int index, DWORD_PTR data);
};

class CDialog : public CWnd
{
    DECLARE_MESSAGE_MAP()

public:
    // The template is looked up when the dialog is shown.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr);
    virtual ~CDialog();

    // Shows the dialog until it is ended; IDOK, IDCANCEL or what else EndDialog was given, -1 when
    // it could not be made [prints].
    virtual INT_PTR DoModal();
    void EndDialog(int result);
    // The control has the keyboard, and the text of an edit is marked.
    void GotoDlgCtrl(CWnd* control);

    // The exchange FALSE runs in it. TRUE lets the first control have the focus.
    virtual BOOL OnInitDialog();

protected:
    virtual void OnOK();      // exchange TRUE, then ends with IDOK
    virtual void OnCancel();  // ends with IDCANCEL; Esc and the close button come here too

    friend struct DialogProcedure;

private:
    UINT m_templateId;
    CWnd* m_parent;
    INT_PTR m_result;
    bool m_ended;
};
