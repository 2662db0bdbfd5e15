// The file that keeps the lines typed at a terminal from one session to the next.
#pragma once

#include <string>

namespace host
{
// Returns the file's name and makes its folder if possible; an empty name when the user has no
// place for it.
std::string historyFile();
}  // namespace host
