// Calls of dialogs, windows and the system that can fail.
#include "acdocman.h"
#include "acui.h"
#include "aduiButton.h"
#include "acedads.h"
#include "rxregsvc.h"
#include "tests/faults/callthatfails.h"

CALL_THAT_FAILS(AcApDocManager*, failDocManager, "_Z15acDocManagerPtrv", "acDocManager", (), (),
                NOTHING, 0, nullptr)
CALL_THAT_FAILS(INT_PTR, failDoModal, "_ZN15CAdUiBaseDialog7DoModalEv", "CAcUiDialog::DoModal",
                (CAdUiBaseDialog * self), (self), NOTHING, 0, -1, IDCANCEL)
CALL_THAT_FAILS(BOOL, failAutoLoad, "_ZN20CAdUiOwnerDrawButton8AutoLoadEv",
                "CAdUiBitmapButton::AutoLoad", (CAdUiOwnerDrawButton * self), (self), NOTHING, 0,
                FALSE)
CALL_THAT_FAILS(int, failMessageBox, "MessageBoxW", "MessageBox",
                (HWND owner, LPCWSTR text, LPCWSTR caption, UINT type),
                (owner, text, caption, type), NOTHING, 0, 0)
CALL_THAT_FAILS(DWORD, failModuleName, "GetModuleFileNameW", "GetModuleFileName",
                (HINSTANCE module, LPWSTR name, DWORD room), (module, name, room), NOTHING, 0, 0)
CALL_THAT_FAILS(int, failLocaleName, "LCIDToLocaleName", "LCIDToLocaleName",
                (LCID locale, LPWSTR name, int room, DWORD flags), (locale, name, room, flags),
                NOTHING, 0, 0)
CALL_THAT_FAILS(HWND, failMainWindow, "_Z16adsw_acadMainWndv", "adsw_acadMainWnd", (), (), NOTHING,
                0, nullptr)
CALL_THAT_FAILS(LCID, failLocale, "_Z15acrxProductLCIDv", "acrxProductLCID", (), (), NOTHING, 0, 0)

// The contents of a dialog's controls.

CALL_THAT_FAILS(CWnd*, failFromHandle, "_ZN4CWnd10FromHandleEP6HWND__", "CWnd::FromHandle",
                (HWND window), (window), NOTHING, 0, nullptr)
CALL_THAT_FAILS(CWnd*, failItem, "_ZNK4CWnd10GetDlgItemEi", "CWnd::GetDlgItem",
                (const CWnd* self, int id), (self, id), NOTHING, 0, nullptr)
CALL_THAT_FAILS(int, failItemText, "_ZNK4CWnd14GetDlgItemTextEiR8CStringW", "CWnd::GetDlgItemText",
                (const CWnd* self, int id, CString& text), (self, id, text), text.Empty(), 0, 0)
CALL_THAT_FAILS(UINT, failChecked, "_ZNK4CWnd18IsDlgButtonCheckedEi", "CWnd::IsDlgButtonChecked",
                (const CWnd* self, int id), (self, id), NOTHING, 0, BST_UNCHECKED)
CALL_THAT_FAILS(LRESULT, failMessage, "_ZN4CWnd18SendDlgItemMessageEijml",
                "CWnd::SendDlgItemMessage",
                (CWnd * self, int id, UINT message, WPARAM wParam, LPARAM lParam),
                (self, id, message, wParam, lParam), NOTHING, 0, 0)
CALL_THAT_FAILS(BOOL, failEnable, "_ZN4CWnd12EnableWindowEi", "CWnd::EnableWindow",
                (CWnd * self, BOOL enable), (self, enable), NOTHING, 0, FALSE)
CALL_THAT_FAILS(HWND, failGetFocus, "GetFocus", "GetFocus", (), (), NOTHING, 0, nullptr)
CALL_THAT_FAILS(HWND, failSetFocus, "SetFocus", "SetFocus", (HWND window), (window), NOTHING, 0,
                nullptr)
CALL_THAT_FAILS(BOOL, failForeground, "SetForegroundWindow", "SetForegroundWindow", (HWND window),
                (window), NOTHING, 0, FALSE)
SILENT_CALL(failWindowText, "_ZN4CWnd13SetWindowTextEPKw", "CWnd::SetWindowText",
            (CWnd * self, LPCWSTR text), (self, text), NOTHING)
SILENT_CALL(failSetItemText, "_ZN4CWnd14SetDlgItemTextEiPKw", "CWnd::SetDlgItemText",
            (CWnd * self, int id, LPCWSTR text), (self, id, text), NOTHING)
SILENT_CALL(failCheck, "_ZN4CWnd14CheckDlgButtonEij", "CWnd::CheckDlgButton",
            (CWnd * self, int id, UINT check), (self, id, check), NOTHING)
SILENT_CALL(failRadio, "_ZN4CWnd16CheckRadioButtonEiii", "CWnd::CheckRadioButton",
            (CWnd * self, int first, int last, int checked), (self, first, last, checked), NOTHING)
SILENT_CALL(failGoTo, "_ZN7CDialog11GotoDlgCtrlEP4CWnd", "CDialog::GotoDlgCtrl",
            (CDialog * self, CWnd* control), (self, control), NOTHING)

CALL_THAT_FAILS(int, failCount, "_ZNK9CComboBox8GetCountEv", "CComboBox::GetCount",
                (const CComboBox* self), (self), NOTHING, 0, CB_ERR)
CALL_THAT_FAILS(int, failAddString, "_ZN9CComboBox9AddStringEPKw", "CComboBox::AddString",
                (CComboBox * self, LPCWSTR text), (self, text), NOTHING, 0, CB_ERR)
CALL_THAT_FAILS(int, failSetCurSel, "_ZN9CComboBox9SetCurSelEi", "CComboBox::SetCurSel",
                (CComboBox * self, int index), (self, index), NOTHING, 0, CB_ERR)
CALL_THAT_FAILS(int, failGetCurSel, "_ZNK9CComboBox9GetCurSelEv", "CComboBox::GetCurSel",
                (const CComboBox* self), (self), NOTHING, 0, CB_ERR)
CALL_THAT_FAILS(int, failFindString, "_ZNK9CComboBox15FindStringExactEiPKw",
                "CComboBox::FindStringExact", (const CComboBox* self, int after, LPCWSTR text),
                (self, after, text), NOTHING, 0, CB_ERR)
SILENT_CALL(failItemOfList, "_ZNK9CComboBox9GetLBTextEiR8CStringW", "CComboBox::GetLBText",
            (const CComboBox* self, int index, CString& text), (self, index, text), NOTHING)
CALL_THAT_FAILS(int, failAddColor, "_ZN18CAcUiColorComboBox13AddColorToMRUEi",
                "CAcUiColorComboBox::AddColorToMRU", (CAcUiColorComboBox * self, int color),
                (self, color), NOTHING, 0, -1)
CALL_THAT_FAILS(int, failItemColor, "_ZNK18CAcUiColorComboBox24GetCurrentItemColorIndexEv",
                "CAcUiColorComboBox::GetCurrentItemColorIndex", (const CAcUiColorComboBox* self),
                (self), NOTHING, 0, -1)
