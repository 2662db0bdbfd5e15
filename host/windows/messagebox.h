// How a message box of the module reaches the user.
#pragma once

#include <functional>
#include <string>

namespace host
{
struct ShownBox
{
    std::wstring text;
    std::wstring caption;
    unsigned type = 0;               // as MessageBoxW has it
    std::function<bool()> isGone{};  // the user has answered with the mouse
};

// Returns the id of the button, 0 when the user cannot be asked or has answered already.
using MessageBoxHandler = std::function<int(const ShownBox& box)>;

// The editor answers from now on; an empty handler takes it away. Without one MessageBoxW gives 0.
void setMessageBoxHandler(MessageBoxHandler handler);

// Shows the text in a box over the dialog at which the user works; it is answered like any other.
// False where no dialog is on a screen.
bool alertOverDialog(const std::wstring& text);
}  // namespace host
