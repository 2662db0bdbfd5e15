// Completion of what is typed at a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/editor/frontend.h"

namespace host
{
struct Completion
{
    std::size_t replaced = 0;             // letters before the cursor that go
    std::wstring text{};                  // what comes in their place
    std::vector<std::wstring> choices{};  // between which more has to be typed; sorted
};

// Command names and system variables at the command prompt and after an apostrophe, the question's
// keywords elsewhere; letter case does not count. Where a file is asked for, what the folders hold.
// No text and no choices: nothing fits.
Completion complete(const Question& question, std::wstring_view beforeCursor);
}  // namespace host
