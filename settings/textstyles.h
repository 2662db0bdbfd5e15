// Lists the text styles of the current drawing.
#pragma once

#include <vector>

#include "hostapi/host.h"

// Returns the names of the text styles in table order, without erased styles. The list is empty
// when the drawing cannot be locked or read.
std::vector<CString> textStyleNames();
