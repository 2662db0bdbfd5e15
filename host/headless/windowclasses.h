// The classes of windows that the system itself registers.
#pragma once

#include <string_view>

#include "host/headless/windowtree.h"

namespace host
{
extern const WindowClass dialogClass;

// Returns the class of that name, in any letter case, or of that number [borrowed]; null for an
// unknown class.
const WindowClass* controlClass(std::wstring_view name, WORD ordinal);

// Tells whether the window is a button of that type (BS_...). Other controls use the same bits for
// other styles.
bool isButton(const Window& window, DWORD type);
}  // namespace host
