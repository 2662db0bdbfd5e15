// The file that keeps the lines typed at a terminal from one session to the next.
#pragma once

#include <string>

namespace host
{
// Returns the file's name and creates its folder if possible. Returns an empty name when the user
// has no folder for it.
std::string historyFile();
}  // namespace host
