// The text of a script: UTF-8, or UTF-16 behind its byte-order mark.
#pragma once

#include <string>
#include <string_view>

#include "host/runtime/result.h"

namespace host
{
// Whether the text begins with a mark of UTF-16.
bool beginsAsUtf16(std::string_view bytes);

// The text in UTF-8 without the mark. Anything else is a failure with the line where it stands, so
// that no letter is taken for another.
Result<std::string> scriptText(std::string_view bytes, const std::string& name);

// The same for one line of a script that comes line by line; it has to be UTF-8.
Result<> checkUtf8(std::string_view line, const std::string& name, int number);
}  // namespace host
