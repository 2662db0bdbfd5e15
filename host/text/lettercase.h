// Letter case by Unicode, whatever the program's locale.
#pragma once

namespace host
{
// The character itself where it has no such form.
wchar_t smallLetter(wchar_t letter);
wchar_t capitalLetter(wchar_t letter);
}  // namespace host
