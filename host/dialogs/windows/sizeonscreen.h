// Scales pictures to the screen.
#pragma once

#include "windows.h"

namespace host
{
// Returns the size of the picture in dots of the screen. A picture is made for 96 dots to the inch
// and grows with the dialog on a finer screen.
SIZE sizeOnScreen(SIZE picture, int dotsPerInch);
}  // namespace host
