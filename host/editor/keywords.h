// Keyword lists in the form that acedInitGet takes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host
{
// Holds the keywords of a list, which blanks separate. The first run of capitals in a keyword is
// the shortest text that selects it; a comma may give another abbreviation ("LTYPE,LT"). After a
// "_" that stands alone, the list repeats the keywords in their global forms, which a user types
// with a leading underscore.
class KeywordList
{
public:
    KeywordList() = default;
    explicit KeywordList(std::wstring_view list);

    bool empty() const { return m_keywords.empty(); }
    // Returns the keyword that was typed, as the list spells it, or its global form if there is
    // one. Returns no value when no keyword matches. Letter case is ignored. A keyword typed in
    // full takes precedence over an abbreviation of another keyword.
    std::optional<std::wstring> match(std::wstring_view typed) const;
    // Returns the keywords in the order of the list, in their local forms.
    std::vector<std::wstring> names() const;

private:
    struct Keyword
    {
        std::wstring name;
        std::wstring shortest;
        std::size_t shortestAt = 0;  // the position of the shortest form in the name
        std::wstring global;         // the form that `match` returns
    };

    static Keyword parse(std::wstring_view token);
    static bool abbreviates(std::wstring_view typed, const Keyword& keyword);

    std::vector<Keyword> m_keywords;
    std::vector<Keyword> m_globals;
};
}  // namespace host
