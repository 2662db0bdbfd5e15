// Answers messages for each class of windows.
//
// A dialog that is notified may destroy itself. A window may therefore be gone when a function
// returns, and no function touches the window after it has notified the dialog.
#pragma once

#include <string>

#include "host/headless/windowtree.h"

namespace host
{
// Answers a message for a window of any class, a button, an edit, a combo box or a dialog.
// anyMessage reads and sets the text and answers 0 to every other message.
LRESULT anyMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT buttonMessage(Window& button, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT editMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT comboBoxMessage(Window& list, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT dialogMessage(Window& dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Notifies the control's dialog of what happened (BN_CLICKED and similar codes).
void notifyDialog(const Window& control, WORD code);

// Returns the text that a message points to, or an empty text for a null pointer.
std::wstring textAt(LPARAM text);
// Copies as much of the text as fits and adds a zero, which `size` must include. Returns the length
// without the zero.
LRESULT copyCut(const std::wstring& from, LPWSTR to, std::size_t size);
}  // namespace host
