// What a button with a picture shows.
#pragma once

#include <cstddef>
#include <span>

#include "acui.h"

namespace host
{
// The bitmap's bytes as the module's resources hold them; empty for a button that has none.
std::span<const std::byte> bitmapOfButton(HWND button);
}  // namespace host
