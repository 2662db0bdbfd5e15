// The picture of a button.
#pragma once

#include <cstddef>
#include <span>

#include "acui.h"

namespace host
{
// Returns the bitmap's bytes as the module's resources hold them [borrowed], good while the module
// is loaded. The view is empty for a button without a bitmap.
std::span<const std::byte> bitmapOfButton(HWND button);
}  // namespace host
