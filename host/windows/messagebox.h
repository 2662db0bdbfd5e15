// Shows a module's message boxes to the user.
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
    unsigned type = 0;               // the type argument of MessageBoxW
    std::function<bool()> isGone{};  // true once the user has answered it with the mouse
};

// Asks the user and returns the id of the pressed button, or 0 when no user can be asked or the box
// has been closed already.
using MessageBoxHandler = std::function<int(const ShownBox& box)>;

// Passes every later message box to the handler; an empty handler removes it. Without a handler
// MessageBoxW returns 0.
void setMessageBoxHandler(MessageBoxHandler handler);

// Shows the text in a box over the dialog on the screen and waits until the user has answered it.
// Returns false and shows nothing when no dialog is on a screen.
bool alertOverDialog(const std::wstring& text);
}  // namespace host
