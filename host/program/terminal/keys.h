// Reads keys for the line editing library.
#pragma once

#include <histedit.h>

namespace host
{
// Reads the next character of standard input. Returns 1, or 0 at the end of the input and -1 on an
// error. Replaces a lone Esc by Ctrl-C, because the library would wait for the rest of a key's
// sequence.
int readKey(EditLine* editLine, wchar_t* key);
}  // namespace host
