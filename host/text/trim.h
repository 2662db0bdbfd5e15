// Removes the blanks around texts.
#pragma once

#include <string_view>

namespace host
{
// Returns a view of the text [borrowed] without the blanks and tabs at both ends.
inline std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == text.npos)
    {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}
inline std::wstring_view trimmed(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(L" \t");
    if (first == text.npos)
    {
        return {};
    }
    return text.substr(first, text.find_last_not_of(L" \t") - first + 1);
}
}  // namespace host
