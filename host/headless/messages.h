// What the classes of windows do with messages.
//
// The window may be gone when a function comes back, since a dialog that is told something may
// destroy itself: nothing of it is touched after the telling.
#pragma once

#include <string>

#include "host/headless/windowtree.h"

namespace host
{
// Any window: it has a text. 0 for all other messages.
LRESULT anyMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT buttonMessage(Window& button, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT editMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT comboBoxMessage(Window& list, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT dialogMessage(Window& dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Tells the control's dialog.
void notifyDialog(const Window& control, WORD code);

// The text that a message brings; empty for null.
std::wstring textAt(LPARAM text);
// Length of what was copied; `size` counts the final NUL.
LRESULT copyCut(const std::wstring& from, LPWSTR to, std::size_t size);
}  // namespace host
