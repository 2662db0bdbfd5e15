// The characters of a text without the codes that format them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::plot
{
// "%%d", "%%p", "%%c" and "%%nnn" are the characters they stand for; "%%u", "%%o" and "%%k" draw
// lines along the text and are left out. A control character, as a tab, is a blank.
std::wstring withoutPercentCodes(std::wstring_view text);

// The lines of a text of many lines, its codes left out; a fraction is written "1/2".
std::vector<std::wstring> paragraphs(std::wstring_view text);
}  // namespace host::plot
