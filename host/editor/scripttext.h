// The text of a script: UTF-8, or UTF-16 behind its byte-order mark.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace host
{
// Thrown; what() is one line for the user that begins with the script's name and its line.
struct ScriptError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

bool beginsAsUtf16(std::string_view bytes);

// In UTF-8 without the mark. Throws for what is neither, so that no letter is taken for another.
std::string scriptText(std::string_view bytes, const std::string& name);

// For a script that comes line by line. Throws for a line that is not UTF-8.
void requireUtf8(std::string_view line, const std::string& name, int number);
}  // namespace host
