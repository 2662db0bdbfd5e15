// What a file holds, exchanged for something else.
#pragma once

#include <string>
#include <string_view>

namespace host
{
// Writes all of the bytes where the file stands. False with errno when the disk does not take them.
bool writeFully(int file, std::string_view bytes);

// Gives the file, which is open for writing under that path, these bytes instead of its own. False
// with errno: then it holds what it held, wherever a second file may stand beside it for a moment.
// A symbolic link is followed; mode and owner stay. A device, a file of several names and one in a
// folder that takes no more files are emptied first and then written.
bool rewrite(int file, const std::string& path, std::string_view bytes);
}  // namespace host
