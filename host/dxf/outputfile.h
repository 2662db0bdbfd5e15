// Any file that a run leaves, a drawing or a picture: written wholly or not at all.
#pragma once

#include <string>
#include <string_view>

#include "host/basics/result.h"

namespace host
{
// Whether a file could be written under that name; known before the work on it begins. A failure
// tells that its folder is not there or takes no files, or that the file may not be written.
// Nothing is changed.
Result<> checkOutputFile(const std::string& path);

// Writes the bytes beside the file and then takes its place. After a failure the old file is whole.
Result<> writeOutputFile(const std::string& path, std::string_view bytes);
}  // namespace host
