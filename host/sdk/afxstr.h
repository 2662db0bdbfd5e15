// MFC's text class, Unicode form.
#pragma once

#include <string>

#include "windows.h"

// Text of UTF-16 units; all positions and lengths count units. A null pointer is an empty text.
// As an argument of a printf-like function it must be cast to LPCTSTR.
class CStringW
{
public:
    CStringW() {}
    CStringW(LPCWSTR text) : m_text(text != nullptr ? text : L"") {}
    CStringW(LPCWSTR text, int length) : m_text(text, length) {}
    explicit CStringW(wchar_t unit, int count = 1) : m_text(count, unit) {}

    CStringW& operator=(LPCWSTR text);
    CStringW& operator=(wchar_t unit);

    operator LPCWSTR() const { return m_text.c_str(); }
    LPCWSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }

    wchar_t GetAt(int index) const { return m_text[index]; }
    wchar_t operator[](int index) const { return m_text[index]; }
    void SetAt(int index, wchar_t unit) { m_text[index] = unit; }

    // Wide printf of the platform that the module was written for: %s takes a wide text, %S a
    // narrow one. The text itself may be among the arguments.
    void Format(LPCWSTR format, ...);

    void Append(LPCWSTR text) { *this += text; }
    CStringW& operator+=(const CStringW& text);
    CStringW& operator+=(LPCWSTR text);
    CStringW& operator+=(wchar_t unit);

    // By the numbers of the units; the second with A-Z as a-z. Below 0, 0, above 0.
    int Compare(LPCWSTR text) const;
    int CompareNoCase(LPCWSTR text) const;

    // Position of the first one at or after `start`, of the last one; -1 for none.
    int Find(LPCWSTR text, int start = 0) const;
    int Find(wchar_t unit, int start = 0) const;
    int ReverseFind(wchar_t unit) const;

    // Parts; a count or position that goes beyond the text is cut to it.
    CStringW Left(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    CStringW Right(int count) const;

    // Take white space, or the units of a set, off the ends.
    CStringW& Trim();
    CStringW& Trim(wchar_t unit);
    CStringW& Trim(LPCWSTR set);
    CStringW& TrimLeft();
    CStringW& TrimLeft(wchar_t unit);
    CStringW& TrimLeft(LPCWSTR set);
    CStringW& TrimRight();
    CStringW& TrimRight(wchar_t unit);
    CStringW& TrimRight(LPCWSTR set);

    // Return the number of places changed.
    int Replace(LPCWSTR from, LPCWSTR to);
    int Replace(wchar_t from, wchar_t to);

    // Room for `length` units and a NUL, good until ReleaseBuffer, which takes the text as long as
    // told or up to its first NUL.
    LPWSTR GetBuffer(int length = 0);
    void ReleaseBuffer(int length = -1);

private:
    std::wstring m_text;
};

typedef CStringW CString;

CStringW operator+(const CStringW& left, const CStringW& right);
CStringW operator+(const CStringW& left, LPCWSTR right);
CStringW operator+(LPCWSTR left, const CStringW& right);
CStringW operator+(const CStringW& left, wchar_t right);
CStringW operator+(wchar_t left, const CStringW& right);

inline bool operator==(const CStringW& left, const CStringW& right)
{
    return left.Compare(right) == 0;
}
inline bool operator==(const CStringW& left, LPCWSTR right)
{
    return left.Compare(right) == 0;
}
inline bool operator==(LPCWSTR left, const CStringW& right)
{
    return right.Compare(left) == 0;
}
inline bool operator!=(const CStringW& left, const CStringW& right)
{
    return !(left == right);
}
inline bool operator!=(const CStringW& left, LPCWSTR right)
{
    return !(left == right);
}
inline bool operator!=(LPCWSTR left, const CStringW& right)
{
    return !(left == right);
}
inline bool operator<(const CStringW& left, const CStringW& right)
{
    return left.Compare(right) < 0;
}
