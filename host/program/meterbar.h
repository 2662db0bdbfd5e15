// Draws the progress meter as a line of text.
#pragma once

#include <string>

#include "host/editor/frontend.h"

namespace host
{
// Returns the line, in UTF-8, for a terminal of that many columns. The last column stays free,
// because text there would begin a new line.
std::string meterBar(const Meter& meter, int columns);
}  // namespace host
