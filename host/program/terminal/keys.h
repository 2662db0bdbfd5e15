// Keys of a terminal, as the line editing library wants to have them.
#pragma once

#include <histedit.h>

namespace host
{
// Reads the next character of standard input. 1, or 0 at its end and -1 on an error. Esc pressed
// alone comes as Ctrl-C: the library would wait for the rest of a key's sequence.
int readKey(EditLine* editLine, wchar_t* key);
}  // namespace host
