// Letter case of names and keywords, for all scripts, whatever the program's locale is.
#pragma once

#include <string>
#include <string_view>

namespace host
{
// Converts to small or to capital letters. Characters without such a form stay as they are.
wchar_t foldCase(wchar_t letter);
std::wstring foldCase(std::wstring_view text);
wchar_t upperCase(wchar_t letter);
std::wstring upperCase(std::wstring_view text);
// Tells whether two texts are equal apart from letter case.
bool equalNoCase(std::wstring_view a, std::wstring_view b);
}  // namespace host
