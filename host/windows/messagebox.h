// How a message box of the module reaches the user.
#pragma once

#include <functional>
#include <string>

namespace host
{
// Returns the id of the button, 0 when the user cannot be asked. `type` is that of MessageBoxW.
using MessageBoxHandler =
    std::function<int(std::wstring text, std::wstring caption, unsigned type)>;

// The editor answers from now on; an empty handler takes it away. Without one MessageBoxW gives 0.
void setMessageBoxHandler(MessageBoxHandler handler);
}  // namespace host
