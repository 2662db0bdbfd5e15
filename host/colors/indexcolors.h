// The colours of the host's palette on paper.
#pragma once

#include "host/colors/color.h"

namespace host
{
// Returns the colour of an index from 1 to 255. Index 7 is black, because the paper is white. Any
// number outside the palette gives black as well.
Color indexColor(int index);
}  // namespace host
