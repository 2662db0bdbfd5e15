#include "afxwin.h"
#include "host/dialogs/wnd.h"

namespace
{
LRESULT send(const CComboBox& list, const char* call, UINT message, WPARAM wParam = 0,
             LPARAM lParam = 0)
{
    return ::SendMessageW(host::windowOf(list, call), message, wParam, lParam);
}

LPARAM asParameter(LPCWSTR text)
{
    return reinterpret_cast<LPARAM>(text);
}
}  // namespace

int CComboBox::GetCount() const
{
    return int(send(*this, "CComboBox::GetCount", CB_GETCOUNT));
}

int CComboBox::GetCurSel() const
{
    return int(send(*this, "CComboBox::GetCurSel", CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index)
{
    return int(send(*this, "CComboBox::SetCurSel", CB_SETCURSEL, WPARAM(index)));
}

int CComboBox::AddString(LPCWSTR text)
{
    return int(send(*this, "CComboBox::AddString", CB_ADDSTRING, 0, asParameter(text)));
}

int CComboBox::InsertString(int index, LPCWSTR text)
{
    return int(
        send(*this, "CComboBox::InsertString", CB_INSERTSTRING, WPARAM(index), asParameter(text)));
}

int CComboBox::DeleteString(UINT index)
{
    return int(send(*this, "CComboBox::DeleteString", CB_DELETESTRING, index));
}

void CComboBox::ResetContent()
{
    send(*this, "CComboBox::ResetContent", CB_RESETCONTENT);
}

int CComboBox::FindStringExact(int after, LPCWSTR text) const
{
    return int(send(*this, "CComboBox::FindStringExact", CB_FINDSTRINGEXACT, WPARAM(after),
                    asParameter(text)));
}

void CComboBox::GetLBText(int index, CString& text) const
{
    text.Empty();
    const LRESULT length = send(*this, "CComboBox::GetLBText", CB_GETLBTEXTLEN, WPARAM(index));
    if (length != CB_ERR)
    {
        wchar_t* const buffer = text.GetBuffer(int(length));
        send(*this, "CComboBox::GetLBText", CB_GETLBTEXT, WPARAM(index),
             reinterpret_cast<LPARAM>(buffer));
        text.ReleaseBuffer();
    }
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return DWORD_PTR(send(*this, "CComboBox::GetItemData", CB_GETITEMDATA, WPARAM(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return int(send(*this, "CComboBox::SetItemData", CB_SETITEMDATA, WPARAM(index), LPARAM(data)));
}
