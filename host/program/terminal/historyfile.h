// Where the lines typed at a terminal are kept from one session to the next.
#pragma once

#include <string>

namespace host
{
// Its folder has been made if that was possible; empty when the user has no place for it.
std::string historyFile();
}  // namespace host
