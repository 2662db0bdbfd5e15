// MFC's text class in its Unicode form.
#pragma once

#include "windows.h"

// A text of UTF-16 units. All positions and lengths count units. Arguments are copied. A null
// pointer counts as an empty text. A CString that is an argument of a printf-like function must be
// cast to LPCTSTR. A pointer into the text is [borrowed] and good until the text changes.
class CStringW
{
public:
    // Create an empty text; a copy of a text; a copy of its first `length` units; `count`
    // repetitions of one unit.
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

    // Return the text with a zero at its end [borrowed].
    operator LPCWSTR() const { return GetString(); }
    LPCWSTR GetString() const;
    // Return the number of units before the zero, and tell whether that number is 0. Empty() makes
    // the text empty.
    int GetLength() const;
    bool IsEmpty() const { return GetLength() == 0; }
    void Empty();

    // Return or replace one unit. index must be at least 0 and less than the length, which is not
    // checked.
    wchar_t GetAt(int index) const { return GetString()[index]; }
    wchar_t operator[](int index) const { return GetString()[index]; }
    void SetAt(int index, wchar_t unit);

    // Replaces the text by the result of the platform's wide printf: %s takes a wide text, %S a
    // narrow one. The text itself may be among the arguments.
    void Format(LPCWSTR format, ...);

    // Add a text or a unit at the end.
    void Append(LPCWSTR text) { *this += text; }
    CStringW& operator+=(const CStringW& text);
    CStringW& operator+=(LPCWSTR text);
    CStringW& operator+=(wchar_t unit);

    // Compare unit by unit, by number; CompareNoCase treats A-Z as a-z. Return a number below 0,
    // equal to 0, or above 0 when this text comes before the other, equals it, or comes after it.
    int Compare(LPCWSTR text) const;
    int CompareNoCase(LPCWSTR text) const;

    // Return the position of the first occurrence at or after `start`, and that of the last
    // occurrence. Return -1 when the text does not occur or is null.
    int Find(LPCWSTR text, int start = 0) const;
    int Find(wchar_t unit, int start = 0) const;
    int ReverseFind(wchar_t unit) const;

    // Return a copy of a part. A count or position beyond the text is limited to it; a negative one
    // counts as 0.
    CStringW Left(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    CStringW Right(int count) const;

    // Remove white space, one unit, or the units of a set from both ends, the start or the end.
    // White space includes the Unicode blanks.
    CStringW& Trim();
    CStringW& Trim(wchar_t unit);
    CStringW& Trim(LPCWSTR set);
    CStringW& TrimLeft();
    CStringW& TrimLeft(wchar_t unit);
    CStringW& TrimLeft(LPCWSTR set);
    CStringW& TrimRight();
    CStringW& TrimRight(wchar_t unit);
    CStringW& TrimRight(LPCWSTR set);

    // Replace every occurrence and return the number of replacements. An empty `from` never occurs.
    int Replace(LPCWSTR from, LPCWSTR to);
    int Replace(wchar_t from, wchar_t to);

    // GetBuffer returns room for `length` units, but no less than the text, and a zero [borrowed].
    // The caller writes into it and then calls ReleaseBuffer, which keeps `length` units of it, or
    // with -1 all units up to the first zero. No other call is allowed in between.
    LPWSTR GetBuffer(int length = 0);
    void ReleaseBuffer(int length = -1);

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};

// The text class of a Unicode module.
typedef CStringW CString;

// Return both texts, one after the other.
CStringW operator+(const CStringW& left, const CStringW& right);
CStringW operator+(const CStringW& left, LPCWSTR right);
CStringW operator+(LPCWSTR left, const CStringW& right);
CStringW operator+(const CStringW& left, wchar_t right);
CStringW operator+(wchar_t left, const CStringW& right);

// Compare two texts as Compare does.
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
