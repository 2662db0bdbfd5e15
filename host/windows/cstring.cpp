#include "afxstr.h"

#include <algorithm>
#include <cstdarg>
#include <cwchar>

#include "tchar.h"
#include "host/windows/format.h"

namespace
{
// iswspace of that platform, which knows the Unicode blanks in every locale.
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

CStringW& CStringW::operator=(LPCWSTR text)
{
    m_text = orEmpty(text);
    return *this;
}

CStringW& CStringW::operator=(wchar_t unit)
{
    m_text.assign(1, unit);
    return *this;
}

void CStringW::Format(LPCWSTR format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    m_text = host::formatWide(format, arguments);
    va_end(arguments);
}

CStringW& CStringW::operator+=(const CStringW& text)
{
    m_text += text.m_text;
    return *this;
}

CStringW& CStringW::operator+=(LPCWSTR text)
{
    m_text += orEmpty(text);
    return *this;
}

CStringW& CStringW::operator+=(wchar_t unit)
{
    m_text += unit;
    return *this;
}

int CStringW::Compare(LPCWSTR text) const
{
    return std::wcscmp(m_text.c_str(), orEmpty(text));
}

int CStringW::CompareNoCase(LPCWSTR text) const
{
    return _wcsicmp(m_text.c_str(), orEmpty(text));
}

// A start below zero lies beyond every text when it is taken without its sign.
int CStringW::Find(LPCWSTR text, int start) const
{
    return text == nullptr ? -1 : position(m_text.find(text, start));
}

int CStringW::Find(wchar_t unit, int start) const
{
    return position(m_text.find(unit, start));
}

int CStringW::ReverseFind(wchar_t unit) const
{
    return position(m_text.rfind(unit));
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
    part.m_text = m_text.substr(from, std::max(count, 0));
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
    m_text.erase(0, m_text.find_first_not_of(orEmpty(set)));
    return *this;
}

CStringW& CStringW::TrimRight(LPCWSTR set)
{
    m_text.erase(m_text.find_last_not_of(orEmpty(set)) + 1);
    return *this;
}

int CStringW::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring old = orEmpty(from);
    const std::wstring replacement = orEmpty(to);
    int count = 0;
    std::size_t at = old.empty() ? std::wstring::npos : m_text.find(old);
    for (; at != std::wstring::npos; at = m_text.find(old, at + replacement.size()))
    {
        m_text.replace(at, old.size(), replacement);
        ++count;
    }
    return count;
}

int CStringW::Replace(wchar_t from, wchar_t to)
{
    const int count = from != to ? int(std::count(m_text.begin(), m_text.end(), from)) : 0;
    std::replace(m_text.begin(), m_text.end(), from, to);
    return count;
}

LPWSTR CStringW::GetBuffer(int length)
{
    m_text.resize(std::max(length, GetLength()));
    return &m_text[0];
}

void CStringW::ReleaseBuffer(int length)
{
    m_text.resize(length >= 0 ? std::size_t(length) : std::wcslen(m_text.c_str()));
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
