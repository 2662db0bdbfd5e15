// Letter case by Unicode, whatever the program's locale is.
#pragma once

namespace host
{
// Returns the small or the capital form of a letter; the character itself if it has no such form.
wchar_t smallLetter(wchar_t letter);
wchar_t capitalLetter(wchar_t letter);
}  // namespace host
