// Completes the text that is typed at a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/editor/frontend.h"

namespace host
{
// The change to the typed text.
struct Completion
{
    std::size_t replaced = 0;             // the number of letters before the cursor to replace
    std::wstring text{};                  // the text that replaces them
    std::vector<std::wstring> choices{};  // the sorted names that still match, if there are several
};

// Completes command names and system variables at the command prompt, command names after an
// apostrophe, the words of dialog lines in a dialog, file names where a file is asked for, and the
// question's keywords elsewhere. Letter case matters in file names only. Returns neither text nor
// choices when nothing matches.
Completion complete(const Question& question, std::wstring_view beforeCursor);
}  // namespace host
