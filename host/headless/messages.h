// Answers of the classes of windows to messages.
//
// A dialog that is told something may destroy itself. So the window may be gone when a function
// returns, and no function touches it after it has told the dialog.
#pragma once

#include <string>

#include "host/headless/windowtree.h"

namespace host
{
// Answers for any window: reads and sets its text. Any other message gets 0.
LRESULT anyMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT buttonMessage(Window& button, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT editMessage(Window& edit, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT comboBoxMessage(Window& list, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT dialogMessage(Window& dialog, UINT message, WPARAM wParam, LPARAM lParam);

// Tells the control's dialog what happened (BN_CLICKED and the like).
void notifyDialog(const Window& control, WORD code);

// Returns the text that a message brings; an empty text for a null pointer.
std::wstring textAt(LPARAM text);
// Copies as much of the text as fits and ends it with a zero, for which `size` has to leave room.
// Returns the length without the zero.
LRESULT copyCut(const std::wstring& from, LPWSTR to, std::size_t size);
}  // namespace host
