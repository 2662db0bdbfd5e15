// The objects that stand for windows.
#pragma once

#include <string>

#include "afxwin.h"

namespace host
{
// The object that was made to stand for the window; null when only temporary ones do.
CWnd* objectOf(HWND window);

// The window that the object stands for; for none a breach that names the call.
HWND windowOf(const CWnd& object, const char* call);

// Temporary objects of windows that are gone go as well; others stand for no window any more.
void dropGoneWindows();

std::wstring windowText(HWND window);
}  // namespace host
