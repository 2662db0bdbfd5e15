// The progress meter as a line of text.
#pragma once

#include <string>

#include "host/editor/frontend.h"

namespace host
{
// Fits a terminal of so many columns. The last column stays free: text there would begin a new
// line.
std::string meterBar(const Meter& meter, int columns);
}  // namespace host
