// The classes of windows that the system itself registers.
#pragma once

#include <string_view>

#include "host/headless/windowtree.h"

namespace host
{
extern const WindowClass dialogClass;

// Returns the class with that name, in any letter case, or with that number [borrowed]. The class
// lives as long as the program. Returns null for an unknown class.
const WindowClass* controlClass(std::wstring_view name, WORD ordinal);

// Tells whether the window is a button of that type (BS_...). Other controls use the same bits for
// other styles.
bool isButton(const Window& window, DWORD type);
}  // namespace host
