#include "afxwin.h"

namespace
{
LRESULT send(const CComboBox& list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return const_cast<CComboBox&>(list).SendMessage(message, wParam, lParam);
}

LPARAM asParameter(LPCWSTR text)
{
    return reinterpret_cast<LPARAM>(text);
}
}  // namespace

int CComboBox::GetCount() const
{
    return int(send(*this, CB_GETCOUNT));
}

int CComboBox::GetCurSel() const
{
    return int(send(*this, CB_GETCURSEL));
}

int CComboBox::SetCurSel(int index)
{
    return int(send(*this, CB_SETCURSEL, WPARAM(index)));
}

int CComboBox::AddString(LPCWSTR text)
{
    return int(send(*this, CB_ADDSTRING, 0, asParameter(text)));
}

int CComboBox::InsertString(int index, LPCWSTR text)
{
    return int(send(*this, CB_INSERTSTRING, WPARAM(index), asParameter(text)));
}

int CComboBox::DeleteString(UINT index)
{
    return int(send(*this, CB_DELETESTRING, index));
}

void CComboBox::ResetContent()
{
    send(*this, CB_RESETCONTENT);
}

int CComboBox::FindStringExact(int after, LPCWSTR text) const
{
    return int(send(*this, CB_FINDSTRINGEXACT, WPARAM(after), asParameter(text)));
}

void CComboBox::GetLBText(int index, CString& text) const
{
    text.Empty();
    const LRESULT length = send(*this, CB_GETLBTEXTLEN, WPARAM(index));
    if (length != CB_ERR)
    {
        wchar_t* const buffer = text.GetBuffer(int(length));
        send(*this, CB_GETLBTEXT, WPARAM(index), reinterpret_cast<LPARAM>(buffer));
        text.ReleaseBuffer();
    }
}

DWORD_PTR CComboBox::GetItemData(int index) const
{
    return DWORD_PTR(send(*this, CB_GETITEMDATA, WPARAM(index)));
}

int CComboBox::SetItemData(int index, DWORD_PTR data)
{
    return int(send(*this, CB_SETITEMDATA, WPARAM(index), LPARAM(data)));
}
