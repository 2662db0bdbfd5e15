// Removes the codes that format a text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::plot
{
// Replaces "%%d", "%%p", "%%c" and "%%nnn" by the characters that they represent, and a control
// character such as a tab by a blank. Removes "%%u", "%%o" and "%%k", which draw lines along the
// text.
std::wstring withoutPercentCodes(std::wstring_view text);

// Returns the paragraphs of a multiline text without its codes. A fraction is written as "1/2".
std::vector<std::wstring> paragraphs(std::wstring_view text);
}  // namespace host::plot
