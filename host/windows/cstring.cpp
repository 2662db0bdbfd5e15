#include "afxstr.h"

#include <algorithm>
#include <cstdarg>
#include <cwchar>
#include <string>

#include "tchar.h"
#include "host/windows/format.h"

struct CStringW::Internals
{
    std::wstring text;
};

namespace
{
// The characters of that platform's iswspace, which knows the Unicode blanks in every locale.
const wchar_t whiteSpace[] =
    L" \t\n\v\f\r\u0085\u00A0\u1680\u180E\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008"
    L"\u2009\u200A\u2028\u2029\u202F\u205F\u3000";

LPCWSTR orEmpty(LPCWSTR text)
{
    return text != nullptr ? text : L"";
}

int position(std::size_t found)
{
    return found == std::wstring::npos ? -1 : int(found);
}
}  // namespace

CStringW::CStringW() : m_internals(new Internals()) {}

CStringW::CStringW(LPCWSTR text) : m_internals(new Internals{orEmpty(text)}) {}

CStringW::CStringW(LPCWSTR text, int length)
    : m_internals(new Internals{std::wstring(text, std::size_t(length))})
{
}

CStringW::CStringW(wchar_t unit, int count)
    : m_internals(new Internals{std::wstring(std::size_t(count), unit)})
{
}

CStringW::CStringW(const CStringW& text) : m_internals(new Internals(*text.m_internals)) {}

CStringW::~CStringW()
{
    delete m_internals;
}

CStringW& CStringW::operator=(const CStringW& text)
{
    m_internals->text = text.m_internals->text;
    return *this;
}

CStringW& CStringW::operator=(LPCWSTR text)
{
    m_internals->text = orEmpty(text);
    return *this;
}

CStringW& CStringW::operator=(wchar_t unit)
{
    m_internals->text.assign(1, unit);
    return *this;
}

LPCWSTR CStringW::GetString() const
{
    return m_internals->text.c_str();
}

int CStringW::GetLength() const
{
    return int(m_internals->text.size());
}

void CStringW::Empty()
{
    m_internals->text.clear();
}

void CStringW::SetAt(int index, wchar_t unit)
{
    m_internals->text[std::size_t(index)] = unit;
}

void CStringW::Format(LPCWSTR format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    m_internals->text = host::formatWide(format, arguments);
    va_end(arguments);
}

CStringW& CStringW::operator+=(const CStringW& text)
{
    m_internals->text += text.m_internals->text;
    return *this;
}

CStringW& CStringW::operator+=(LPCWSTR text)
{
    m_internals->text += orEmpty(text);
    return *this;
}

CStringW& CStringW::operator+=(wchar_t unit)
{
    m_internals->text += unit;
    return *this;
}

int CStringW::Compare(LPCWSTR text) const
{
    return std::wcscmp(m_internals->text.c_str(), orEmpty(text));
}

int CStringW::CompareNoCase(LPCWSTR text) const
{
    return _wcsicmp(m_internals->text.c_str(), orEmpty(text));
}

// A negative start counts as an unsigned number, which lies beyond every text.
int CStringW::Find(LPCWSTR text, int start) const
{
    return text == nullptr ? -1 : position(m_internals->text.find(text, start));
}

int CStringW::Find(wchar_t unit, int start) const
{
    return position(m_internals->text.find(unit, start));
}

int CStringW::ReverseFind(wchar_t unit) const
{
    return position(m_internals->text.rfind(unit));
}

CStringW CStringW::Left(int count) const
{
    return Mid(0, count);
}

CStringW CStringW::Mid(int first) const
{
    return Mid(first, GetLength());
}

CStringW CStringW::Mid(int first, int count) const
{
    const std::size_t from = std::clamp(first, 0, GetLength());
    CStringW part;
    part.m_internals->text = m_internals->text.substr(from, std::max(count, 0));
    return part;
}

CStringW CStringW::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CStringW& CStringW::Trim()
{
    return Trim(whiteSpace);
}
CStringW& CStringW::Trim(wchar_t unit)
{
    return TrimRight(unit).TrimLeft(unit);
}
CStringW& CStringW::Trim(LPCWSTR set)
{
    return TrimRight(set).TrimLeft(set);
}
CStringW& CStringW::TrimLeft()
{
    return TrimLeft(whiteSpace);
}
CStringW& CStringW::TrimRight()
{
    return TrimRight(whiteSpace);
}

CStringW& CStringW::TrimLeft(wchar_t unit)
{
    const wchar_t set[] = {unit, L'\0'};
    return TrimLeft(set);
}

CStringW& CStringW::TrimRight(wchar_t unit)
{
    const wchar_t set[] = {unit, L'\0'};
    return TrimRight(set);
}

CStringW& CStringW::TrimLeft(LPCWSTR set)
{
    m_internals->text.erase(0, m_internals->text.find_first_not_of(orEmpty(set)));
    return *this;
}

CStringW& CStringW::TrimRight(LPCWSTR set)
{
    m_internals->text.erase(m_internals->text.find_last_not_of(orEmpty(set)) + 1);
    return *this;
}

int CStringW::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring old = orEmpty(from);
    const std::wstring replacement = orEmpty(to);
    int count = 0;
    std::size_t at = old.empty() ? std::wstring::npos : m_internals->text.find(old);
    for (; at != std::wstring::npos; at = m_internals->text.find(old, at + replacement.size()))
    {
        m_internals->text.replace(at, old.size(), replacement);
        ++count;
    }
    return count;
}

int CStringW::Replace(wchar_t from, wchar_t to)
{
    const int count =
        from != to ? int(std::count(m_internals->text.begin(), m_internals->text.end(), from)) : 0;
    std::replace(m_internals->text.begin(), m_internals->text.end(), from, to);
    return count;
}

LPWSTR CStringW::GetBuffer(int length)
{
    m_internals->text.resize(std::max(length, GetLength()));
    return &m_internals->text[0];
}

void CStringW::ReleaseBuffer(int length)
{
    m_internals->text.resize(length >= 0 ? std::size_t(length)
                                         : std::wcslen(m_internals->text.c_str()));
}

CStringW operator+(const CStringW& left, const CStringW& right)
{
    return CStringW(left) += right;
}
CStringW operator+(const CStringW& left, LPCWSTR right)
{
    return CStringW(left) += right;
}
CStringW operator+(LPCWSTR left, const CStringW& right)
{
    return CStringW(left) += right;
}
CStringW operator+(const CStringW& left, wchar_t right)
{
    return CStringW(left) += right;
}
CStringW operator+(wchar_t left, const CStringW& right)
{
    return CStringW(left, 1) += right;
}
