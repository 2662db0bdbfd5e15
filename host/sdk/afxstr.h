// MFC's text class, Unicode form.
#pragma once

#include "windows.h"

// Text of UTF-16 units; all positions and lengths count units. Texts that are given are copied. A
// null pointer counts as an empty text. As an argument of a printf-like function a CString must be
// cast to LPCTSTR. A pointer into the text is [borrowed] and good until the text changes.
class CStringW
{
public:
    // Empty; a copy of a text; a copy of its first `length` units; `count` times the same unit.
    CStringW();
    CStringW(LPCWSTR text);
    CStringW(LPCWSTR text, int length);
    explicit CStringW(wchar_t unit, int count = 1);
    CStringW(const CStringW& text);
    ~CStringW();

    // Replaces the text.
    CStringW& operator=(const CStringW& text);
    CStringW& operator=(LPCWSTR text);
    CStringW& operator=(wchar_t unit);

    // The text with a zero at its end [borrowed].
    operator LPCWSTR() const { return GetString(); }
    LPCWSTR GetString() const;
    // Number of units before the zero, and whether it is 0. Empty makes it so.
    int GetLength() const;
    bool IsEmpty() const { return GetLength() == 0; }
    void Empty();

    // One unit. index is at least 0 and below the length; nothing checks that.
    wchar_t GetAt(int index) const { return GetString()[index]; }
    wchar_t operator[](int index) const { return GetString()[index]; }
    void SetAt(int index, wchar_t unit);

    // Replaces the text by what the wide printf of the platform makes: %s takes a wide text, %S a
    // narrow one. The text itself may be among the arguments.
    void Format(LPCWSTR format, ...);

    // Adds at the end.
    void Append(LPCWSTR text) { *this += text; }
    CStringW& operator+=(const CStringW& text);
    CStringW& operator+=(LPCWSTR text);
    CStringW& operator+=(wchar_t unit);

    // Compares unit by unit, by their numbers; CompareNoCase takes A-Z as a-z. Returns a number
    // below 0, 0, or above 0 when this text comes before the other, equals it, or comes after it.
    int Compare(LPCWSTR text) const;
    int CompareNoCase(LPCWSTR text) const;

    // Position of the first occurrence at or after `start`, and of the last one; -1 when there is
    // none or text is null.
    int Find(LPCWSTR text, int start = 0) const;
    int Find(wchar_t unit, int start = 0) const;
    int ReverseFind(wchar_t unit) const;

    // Copies of a part. A count or position that goes beyond the text is cut to it; a negative one
    // counts as 0.
    CStringW Left(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    CStringW Right(int count) const;

    // Take white space, one unit or the units of a set off both ends, the start or the end. White
    // space includes the Unicode blanks.
    CStringW& Trim();
    CStringW& Trim(wchar_t unit);
    CStringW& Trim(LPCWSTR set);
    CStringW& TrimLeft();
    CStringW& TrimLeft(wchar_t unit);
    CStringW& TrimLeft(LPCWSTR set);
    CStringW& TrimRight();
    CStringW& TrimRight(wchar_t unit);
    CStringW& TrimRight(LPCWSTR set);

    // Replace every occurrence and return the number of places changed. An empty `from` occurs
    // nowhere.
    int Replace(LPCWSTR from, LPCWSTR to);
    int Replace(wchar_t from, wchar_t to);

    // Room for `length` units, but no less than the text, and a zero [borrowed]. The caller writes
    // into it and then calls ReleaseBuffer, which takes `length` units of it, or with -1 all up to
    // the first zero. Nothing else may be called in between.
    LPWSTR GetBuffer(int length = 0);
    void ReleaseBuffer(int length = -1);

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};

// The text class of a Unicode module.
typedef CStringW CString;

// Both texts, one after the other.
CStringW operator+(const CStringW& left, const CStringW& right);
CStringW operator+(const CStringW& left, LPCWSTR right);
CStringW operator+(LPCWSTR left, const CStringW& right);
CStringW operator+(const CStringW& left, wchar_t right);
CStringW operator+(wchar_t left, const CStringW& right);

// The order of Compare.
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
