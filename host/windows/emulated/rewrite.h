// Replaces the contents of a file.
#pragma once

#include <string>
#include <string_view>

namespace host
{
// Writes all the bytes at the file's current position. Returns false with errno if the disk does
// not take them.
bool writeFully(int file, std::string_view bytes);

// Replaces the contents of a file that is open for writing at `path`. Returns false with errno on
// failure. The file then keeps its contents wherever a second file can stand beside it for a
// moment. A symbolic link is followed; mode and owner stay. A device, a file with several names and
// a file in a folder that takes no new files are emptied first and then written.
bool rewrite(int file, const std::string& path, std::string_view bytes);
}  // namespace host
