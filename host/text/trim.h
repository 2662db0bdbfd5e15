// Texts without the blanks around them.
#pragma once

#include <string_view>

namespace host
{
// Without blanks and tabs at both ends; a view of the text that is given.
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
