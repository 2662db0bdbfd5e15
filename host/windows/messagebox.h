// How a message box of the module reaches the user.
#pragma once

#include <functional>
#include <string>

namespace host
{
// A message box that the module shows.
struct ShownBox
{
    std::wstring text;
    std::wstring caption;
    unsigned type = 0;               // as MessageBoxW has it
    std::function<bool()> isGone{};  // true once the user has answered it with the mouse
};

// Asks the user and returns the id of the pressed button; 0 when nobody can be asked or the box is
// gone already.
using MessageBoxHandler = std::function<int(const ShownBox& box)>;

// Hands every later message box to the handler; an empty one takes it away. Without a handler
// MessageBoxW returns 0.
void setMessageBoxHandler(MessageBoxHandler handler);

// Shows the text in a box over the dialog on the screen and waits until the user has answered it.
// False when no dialog is on a screen; nothing is shown then.
bool alertOverDialog(const std::wstring& text);
}  // namespace host
