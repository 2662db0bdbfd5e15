// Decodes the text of a script: UTF-8, or UTF-16 behind its byte-order mark.
#pragma once

#include <string>
#include <string_view>

#include "host/basics/result.h"

namespace host
{
// Tells whether the text begins with a byte-order mark of UTF-16.
bool beginsAsUtf16(std::string_view bytes);

// Returns the text in UTF-8 without the mark. Bytes in another encoding are a failure, because
// their letters would be misread; the failure's line gives `name` and the number of the line.
Result<std::string> scriptText(std::string_view bytes, const std::string& name);

// Checks one line of a script that comes line by line. The line must be UTF-8.
Result<> checkUtf8(std::string_view line, const std::string& name, int number);
}  // namespace host
