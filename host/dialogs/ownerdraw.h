// Controls that the system leaves to their owner to draw.
#pragma once

#include "windows.h"
#include "winuser.h"

namespace host
{
// Answers a message to a dialog that asks for drawing; TRUE when something was drawn. Without a
// screen no such message comes.
INT_PTR answerDrawing(UINT message, LPARAM lParam);

// Shows the text when the pointer rests on the control.
void setTooltip(HWND control, const wchar_t* text);
}  // namespace host
