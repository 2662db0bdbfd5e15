// The objects that stand for windows.
#pragma once

#include <string>

#include "afxwin.h"

namespace host
{
// The object that was made to stand for the window [borrowed]; null when there is none or only a
// temporary one.
CWnd* objectOf(HWND window);

// The window that the object stands for. When it stands for none, the run ends and the line names
// the call.
HWND windowOf(const CWnd& object, const char* call);

// Deletes the temporary objects of windows that are gone and detaches the others from them.
void dropGoneWindows();

// The window's text, whole.
std::wstring windowText(HWND window);
}  // namespace host
