// The colours of the host's palette on paper.
#pragma once

#include "host/colors/color.h"

namespace host
{
// Of a colour index, 1 to 255; black for 7, which is black on white paper, and for any other.
Color indexColor(int index);
}  // namespace host
