// Letter case of names and keywords, for all scripts and whatever the program's locale.
#pragma once

#include <string>
#include <string_view>

namespace host
{
wchar_t foldCase(wchar_t letter);
std::wstring foldCase(std::wstring_view text);
wchar_t upperCase(wchar_t letter);
std::wstring upperCase(std::wstring_view text);
bool equalNoCase(std::wstring_view a, std::wstring_view b);
}  // namespace host
