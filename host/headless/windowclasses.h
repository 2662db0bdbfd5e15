// The classes of windows that exist without being registered by anybody.
#pragma once

#include <string_view>

#include "host/headless/windowtree.h"

namespace host
{
extern const WindowClass dialogClass;

// By name, in any case, or by number; null for one that is not known.
const WindowClass* controlClass(std::wstring_view name, WORD ordinal);

// A button of that type (BS_...), not just any control with those bits.
bool isButton(const Window& window, DWORD type);
}  // namespace host
