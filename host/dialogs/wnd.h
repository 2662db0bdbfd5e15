// The objects that represent windows.
#pragma once

#include <string>

#include "afxwin.h"

namespace host
{
// Returns the module's object that represents the window [borrowed], or null when the module has no
// such object. Ignores temporary objects.
CWnd* objectOf(HWND window);

// Returns the window that the object represents. If the object has no window, the run ends with a
// line that names the call.
HWND windowOf(const CWnd& object, const char* call);

// Deletes the temporary objects of windows that are gone and detaches the others from them.
void dropGoneWindows();

// Returns the window's whole text.
std::wstring windowText(HWND window);
}  // namespace host
