// The colours of the host's palette on paper.
#pragma once

#include "host/colors/color.h"

namespace host
{
// The colour of an index from 1 to 255. Index 7 is black, as on white paper; any other number is
// black as well.
Color indexColor(int index);
}  // namespace host
