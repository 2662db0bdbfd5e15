#include "host/editor/keywords.h"

#include "host/text/foldcase.h"

namespace host
{
namespace
{
bool isSmall(wchar_t letter)
{
    return upperCase(letter) != letter;
}

bool isCapital(wchar_t letter)
{
    return foldCase(letter) != letter;
}

std::vector<std::wstring_view> split(std::wstring_view list)
{
    std::vector<std::wstring_view> tokens;
    std::size_t start = list.find_first_not_of(L' ');
    while (start != std::wstring_view::npos)
    {
        const std::size_t end = list.find(L' ', start);
        tokens.push_back(list.substr(start, end - start));
        start = list.find_first_not_of(L' ', end);
    }
    return tokens;
}

bool startsWithNoCase(std::wstring_view text, std::wstring_view start)
{
    return text.size() >= start.size() && equalNoCase(text.substr(0, start.size()), start);
}

// Returns the first run without small letters that holds a capital: "LT" of LType, "3D" of 3Dpoly.
// Returns the whole name when it has no capital.
std::wstring_view capitals(std::wstring_view name)
{
    std::size_t start = 0;
    while (start < name.size())
    {
        std::size_t end = start;
        bool capital = false;
        for (; end < name.size() && !isSmall(name[end]); ++end)
        {
            capital = capital || isCapital(name[end]);
        }
        if (capital)
        {
            return name.substr(start, end - start);
        }
        start = end + 1;
    }
    return name;
}
}  // namespace

KeywordList::KeywordList(std::wstring_view list)
{
    std::vector<Keyword>* into = &m_keywords;
    for (std::wstring_view token : split(list))
    {
        if (token == L"_")
        {
            into = &m_globals;
            continue;
        }
        into->push_back(parse(token));
    }
    for (std::size_t i = 0; i < m_keywords.size() && i < m_globals.size(); ++i)
    {
        m_keywords[i].global = m_globals[i].name;
    }
}

KeywordList::Keyword KeywordList::parse(std::wstring_view token)
{
    const std::size_t comma = token.find(L',');
    const std::wstring_view name = token.substr(0, comma);
    const std::wstring_view shortest =
        comma == std::wstring_view::npos ? capitals(name) : token.substr(comma + 1);
    const std::size_t at = name.find(shortest);
    return {std::wstring(name), std::wstring(shortest), at == name.npos ? 0 : at,
            std::wstring(name)};
}

bool KeywordList::abbreviates(std::wstring_view typed, const Keyword& keyword)
{
    const std::wstring_view name = keyword.name;
    if (typed.empty() || keyword.shortest.empty())
    {
        return false;
    }
    if (equalNoCase(typed, keyword.shortest))
    {
        return true;
    }
    const bool fromStart = typed.size() >= keyword.shortestAt + keyword.shortest.size() &&
                           startsWithNoCase(name, typed);
    const bool fromCapitals = typed.size() >= keyword.shortest.size() &&
                              startsWithNoCase(name.substr(keyword.shortestAt), typed);
    return fromStart || fromCapitals;
}

std::optional<std::wstring> KeywordList::match(std::wstring_view typed) const
{
    const bool global = typed.starts_with(L'_');
    if (global)
    {
        typed.remove_prefix(1);
    }
    const std::vector<Keyword>& keywords = global && !m_globals.empty() ? m_globals : m_keywords;
    for (const Keyword& keyword : keywords)
    {
        if (equalNoCase(typed, keyword.name))
        {
            return keyword.global;
        }
    }
    for (const Keyword& keyword : keywords)
    {
        if (abbreviates(typed, keyword))
        {
            return keyword.global;
        }
    }
    return std::nullopt;
}

std::vector<std::wstring> KeywordList::names() const
{
    std::vector<std::wstring> names;
    for (const Keyword& keyword : m_keywords)
    {
        names.push_back(keyword.name);
    }
    return names;
}
}  // namespace host
