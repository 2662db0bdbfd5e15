// The objects that stand for windows.
#pragma once

#include <string>

#include "afxwin.h"

namespace host
{
// The object that was made to stand for the window; null when only temporary ones do.
CWnd* objectOf(HWND window);

// Those of windows that are gone.
void dropTemporaryObjects();

std::wstring windowText(HWND window);
}  // namespace host
