// Writes any output file of a run, a drawing or a picture, completely or not at all.
#pragma once

#include <string>
#include <string_view>

#include "host/basics/result.h"

namespace host
{
// Checks whether a file could be written at `path`, before the work on it begins. The failure tells
// that the folder does not exist or takes no files, or that the file is not writable. The check
// changes nothing.
Result<> checkOutputFile(const std::string& path);

// Writes the bytes to a new file beside `path` and then renames it to `path`. After a failure the
// old file is whole.
Result<> writeOutputFile(const std::string& path, std::string_view bytes);
}  // namespace host
