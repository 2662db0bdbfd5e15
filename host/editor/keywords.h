// Keyword lists, as acedInitGet takes them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host
{
// Keywords with blanks between them. In each the first run of capitals is the least that has to be
// typed, or, after a comma, an abbreviation stands ("LTYPE,LT"). After a lone "_" follow the global
// forms of the same keywords, which a user types with a leading underscore.
class KeywordList
{
public:
    KeywordList() = default;
    explicit KeywordList(std::wstring_view list);

    bool empty() const { return m_keywords.empty(); }
    // The keyword as the list spells it, in its global form if there is one. Letter case of what
    // was typed does not count; a keyword typed in full goes before an abbreviation of another.
    std::optional<std::wstring> match(std::wstring_view typed) const;
    std::vector<std::wstring> names() const;

private:
    struct Keyword
    {
        std::wstring name;
        std::wstring shortest;
        std::size_t shortestAt = 0;  // where the shortest form stands in the name
        std::wstring global;         // what is given back
    };

    static Keyword parse(std::wstring_view token);
    static bool abbreviates(std::wstring_view typed, const Keyword& keyword);

    std::vector<Keyword> m_keywords;
    std::vector<Keyword> m_globals;
};
}  // namespace host
