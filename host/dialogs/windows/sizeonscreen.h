// How large a picture is drawn.
#pragma once

#include "windows.h"

namespace host
{
// In the screen's dots: a picture is made for 96 dots per inch, and grows with the dialog where
// there are more.
SIZE sizeOnScreen(SIZE picture, int dotsPerInch);
}  // namespace host
