// The progress meter as a line of text.
#pragma once

#include <string>

#include "host/editor/frontend.h"

namespace host
{
// For a terminal of so many columns; stays clear of the last one, where it would begin a new line.
std::string meterBar(const Meter& meter, int columns);
}  // namespace host
