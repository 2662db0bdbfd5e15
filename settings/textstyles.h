// The text styles of the current drawing.
#pragma once

#include <vector>

#include "hostapi/host.h"

// Names in table order, erased styles left out; empty when the drawing cannot be locked or read.
std::vector<CString> textStyleNames();
