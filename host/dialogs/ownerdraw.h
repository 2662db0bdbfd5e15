// Draws the controls that the system leaves to their owner.
#pragma once

#include "windows.h"
#include "winuser.h"

namespace host
{
// Answers a message that asks a dialog to draw. Returns TRUE when something was drawn. A host
// without a screen receives no such message.
INT_PTR answerDrawing(UINT message, LPARAM lParam);

// Sets the text to show while the pointer rests on the control.
void setTooltip(HWND control, const wchar_t* text);
}  // namespace host
